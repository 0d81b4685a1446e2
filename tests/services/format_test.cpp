#include "services/format.h"

#include <clocale>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "services/text.h"

namespace fundlet {
namespace {

constexpr const char* kDollars = "###,###,##0";

// The texts of several numbers under one mask, with blanks between them.
std::string Shown(const char* mask, const std::vector<double>& numbers) {
  std::string shown;
  for (const double number : numbers) shown += (shown.empty() ? "" : " ") + Format(number, mask);
  return shown;
}

TEST(Format, ShowsTheDigitsThatTheMaskAsksFor) {
  EXPECT_EQ(Shown(kDollars, {1234567, 1234.56, 100, 0}), "1,234,567 1,235 100 0");
  EXPECT_EQ(Shown("##,##0", {0, 999, 1000, 99999}), "0 999 1,000 99,999");
  EXPECT_EQ(Shown("#0.0#", {0, 3, 3.5, 3.456, 0.05, 99.99}), "0.0 3.0 3.5 3.46 0.05 99.99");
  EXPECT_EQ(Shown("##0.0##", {0, 2.5, 3.125, 2.126, 10.1, 5e-324}), "0.0 2.5 3.125 2.126 10.1 0.0");
}

TEST(Format, RoundsTheExactValueWithHalvesAwayFromZero) {
  EXPECT_EQ(Shown("#0.0#", {3.125, 2.675, 1.005, 99.995, -3.125}), "3.13 2.67 1.0 100.0 -3.13");
  EXPECT_EQ(Shown(kDollars, {0.5, 2.5, -2.5, 0.49999999999999994, 999.5}), "1 3 -3 0 1,000");
  EXPECT_EQ(Shown("#0.0#", {1.115, 0.005, -0.004, -0.005}), "1.11 0.01 0.0 -0.01");
  EXPECT_EQ(Shown("##0.0##", {0.0625, 9.9996, 0.0015, 1.0005}), "0.063 10.0 0.002 1.0");
  EXPECT_EQ(Shown(kDollars, {4503599627370495.5, 9999999.5, 1e23}),
            "4,503,599,627,370,496 10,000,000 99,999,999,999,999,991,611,392");
  const std::string most = Format(std::numeric_limits<double>::max(), kDollars);
  EXPECT_EQ(most.substr(0, 27) + most.substr(400), "179,769,313,486,231,570,814124,858,368");
}

TEST(Format, DependsOnNoLocaleNorDoesVal) {
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "there is no de_DE.UTF-8";
  EXPECT_EQ(Shown("###,##0.0#", {1234.5}), "1,234.5");
  EXPECT_EQ(Val("1.5") + Val("1.5.5"), 3);
  EXPECT_EQ(Val("1,5"), 1);
}

}  // namespace
}  // namespace fundlet
