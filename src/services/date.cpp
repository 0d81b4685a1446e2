#include "services/date.h"

#include <ctime>

namespace fundlet {

namespace {

constexpr int kFirstYearOfTm = 1900;

}  // namespace

Date::Date() {
  const std::time_t now = std::time(nullptr);
  year_ = kFirstYearOfTm + std::localtime(&now)->tm_year;
}

}  // namespace fundlet
