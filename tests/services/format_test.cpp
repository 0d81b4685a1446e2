#include "services/format.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <locale>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "services/text.h"

// The C library leaks a few bytes when it looks for a locale in the folder that LOCPATH names.
extern "C" const char* __lsan_default_suppressions() { return "leak:argz_add_sep"; }

namespace fundlet {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
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

TEST(Format, RoundsTheExactValueAndAHalfAwayFromZero) {
  EXPECT_EQ(Shown("#0.0#", {3.125, 2.675, 1.005, 99.995, -3.125}), "3.13 2.67 1.0 100.0 -3.13");
  EXPECT_EQ(Shown("##0.0##", {0.0625, 9.9996}), "0.063 10.0");
  EXPECT_EQ(Shown(kDollars, {0.5, 2.5, -2.5, 0.49999999999999994, 999.5}), "1 3 -3 0 1,000");
}

TEST(Format, GivesAnInfinityATextThatReadsAsTheSame) {
  EXPECT_EQ(Val(Format(kInfinity, kDollars)), kInfinity);
  EXPECT_EQ(Val(Format(-kInfinity, "#0.0#")), -kInfinity);
  EXPECT_EQ(Format(-std::numeric_limits<double>::quiet_NaN(), kDollars), "NaN");
}

TEST(Format, AndValDependOnNoLocale) {
  const std::locale before;
  try {
    std::locale::global(std::locale("de_DE.UTF-8"));
  } catch (const std::runtime_error&) {
    GTEST_SKIP() << "there is no de_DE.UTF-8 here";
  }
  EXPECT_EQ(Shown("###,##0.0#", {1234.5}), "1,234.5");
  EXPECT_EQ(Val("1.5"), 1.5);
  EXPECT_EQ(Val("1,5"), 1);
  std::locale::global(before);
}

// The same text by other means: from 2 to the power 52 a double is whole, and the C library prints
// it exactly; below, a thousand times the number is exact in 113 bits.
std::string ExactText(double number, std::size_t least, std::size_t most, bool grouped) {
  __extension__ using Quad = __float128;
  std::string whole(400, '\0');
  std::string decimals(most, '0');
  if (std::fabs(number) < 4503599627370496.0) {
    Quad scaled = std::fabs(number);
    for (std::size_t place = 0; place < most; ++place) scaled *= 10;
    std::string units = std::to_string(static_cast<std::int64_t>(scaled + Quad{0.5}));
    if (units.size() <= most) units.insert(0, most + 1 - units.size(), '0');
    whole = units.substr(0, units.size() - most);
    decimals = units.substr(units.size() - most);
  } else {
    whole.resize(std::snprintf(whole.data(), whole.size(), "%.0f", std::fabs(number)));
  }
  const bool zero = (whole + decimals).find_first_not_of('0') == std::string::npos;
  while (decimals.size() > least && decimals.back() == '0') decimals.pop_back();
  for (std::size_t at = whole.size(); grouped && at > 3;) whole.insert(at -= 3, 1, ',');
  if (number < 0 && !zero) whole.insert(0, 1, '-');
  return decimals.empty() ? whole : whole + '.' + decimals;
}

TEST(Format, AgreesWithAnExactConversionOfAnyNumber) {
  std::mt19937_64 random(2);
  for (int count = 0; count < 10'000; ++count) {
    const auto any = std::bit_cast<double>(random());
    const auto eighths = static_cast<double>(random() % 100'000'000) / 8;
    const auto thousandths = static_cast<double>(random() % 100'000'000) / 2000;
    const auto tiny = std::bit_cast<double>(random() >> 14);
    for (const double number : {any, eighths, -eighths, thousandths, -thousandths, tiny}) {
      if (!std::isfinite(number)) continue;
      ASSERT_EQ(Format(number, kDollars), ExactText(number, 0, 0, true)) << number;
      ASSERT_EQ(Format(number, "#0.0#"), ExactText(number, 1, 2, false)) << number;
      ASSERT_EQ(Format(number, "##0.0##"), ExactText(number, 1, 3, false)) << number;
    }
  }
}

}  // namespace
}  // namespace fundlet
