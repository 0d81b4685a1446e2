#include "services/format.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "services/text.h"

namespace fundlet {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr const char* kDollars = "###,###,##0";

struct Sample {
  double number;
  const char* mask;
  const char* text;
};

void ExpectTexts(const std::vector<Sample>& samples) {
  for (const auto& [number, mask, text] : samples) {
    EXPECT_EQ(Format(number, mask), text) << number << " under " << mask;
  }
}

TEST(Format, ShowsTheDigitsThatTheMaskAsksFor) {
  ExpectTexts({{1234567, kDollars, "1,234,567"},
               {1234.56, kDollars, "1,235"},
               {0, kDollars, "0"},
               {999, "##,##0", "999"},
               {99999, "##,##0", "99,999"},
               {73325, "#,###,###,##0", "73,325"},
               {3, "#0.0#", "3.0"},
               {3.5, "#0.0#", "3.5"},
               {3.456, "#0.0#", "3.46"},
               {3.125, "##0.0##", "3.125"},
               {2.126, "##0.0##", "2.126"},
               {0, "##0.0##", "0.0"},
               {100.0 * 0.03, "##0.0##", "3.0"},
               {0.05, "#0.0#", "0.05"},
               {10.10, "##0.0##", "10.1"},
               {5e-324, "##0.0##", "0.0"}});
}

TEST(Format, RoundsTheExactValueAndAHalfAwayFromZero) {
  ExpectTexts({{3.125, "#0.0#", "3.13"},
               {2.675, "#0.0#", "2.67"},
               {1.005, "#0.0#", "1.0"},
               {0.5, kDollars, "1"},
               {2.5, kDollars, "3"},
               {-2.5, kDollars, "-3"},
               {0.0625, "##0.0##", "0.063"},
               {0.49999999999999994, kDollars, "0"},
               {999.5, kDollars, "1,000"},
               {99.995, "#0.0#", "100.0"},
               {9.9996, "##0.0##", "10.0"}});
}

TEST(Format, KeepsEveryDigitBeforeThePoint) {
  ExpectTexts({{1e9, kDollars, "1,000,000,000"},
               {1e23, "##,##0", "99,999,999,999,999,991,611,392"},
               {12345.678, "#0.0#", "12345.68"}});
}

TEST(Format, HasAMinusSignUnlessItShowsZero) {
  ExpectTexts({{-1234.4, kDollars, "-1,234"},
               {-999, kDollars, "-999"},
               {-3.456, "#0.0#", "-3.46"},
               {-0.49, kDollars, "0"},
               {-0.0, "##0.0##", "0.0"},
               {-0.5, kDollars, "-1"}});
}

TEST(Format, GivesAnInfinityATextThatReadsAsTheSame) {
  EXPECT_EQ(Val(Format(kInfinity, kDollars)), kInfinity);
  EXPECT_EQ(Val(Format(-kInfinity, "#0.0#")), -kInfinity);
  EXPECT_EQ(Format(std::numeric_limits<double>::quiet_NaN(), kDollars), "NaN");
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
