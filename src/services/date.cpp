#include "services/date.h"

#include <ctime>

namespace fundlet {

namespace {

constexpr int kFirstYearOfTm = 1900;

}  // namespace

Date::Date() {
  const std::time_t now = std::time(nullptr);
  const std::tm* local = std::localtime(&now);
  year_ = kFirstYearOfTm + (local != nullptr ? local->tm_year : 0);
}

}  // namespace fundlet
