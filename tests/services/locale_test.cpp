#include <clocale>
#include <locale>

#include <gtest/gtest.h>

#include "services/format.h"
#include "services/text.h"

namespace fundlet {
namespace {

class CommaPoint : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

void ExpectPointsAndCommasAsEver() {
  EXPECT_EQ(Val("1.5"), 1.5);
  EXPECT_EQ(Val("1,5"), 1.0);
  EXPECT_EQ(Format(1234.5, "###,##0.0#"), "1,234.5");
  EXPECT_EQ(Str(1234567), "1234567");
}

TEST(Locale, OfCppChangesNothing) {
  const std::locale before = std::locale::global(std::locale({}, new CommaPoint));
  ExpectPointsAndCommasAsEver();
  std::locale::global(before);
}

TEST(Locale, OfCChangesNothing) {
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "no de_DE.UTF-8 here";
  ExpectPointsAndCommasAsEver();
  std::setlocale(LC_ALL, "C");
}

}  // namespace
}  // namespace fundlet
