#include "services/text.h"

#include <bit>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "services/numbers.h"

namespace fundlet {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::uint64_t Bits(double number) { return std::bit_cast<std::uint64_t>(number); }

void ExpectEachReadsAs(double value, const std::vector<std::string>& texts) {
  for (const std::string& text : texts) {
    EXPECT_EQ(Bits(Val(text)), Bits(value)) << "'" << text.substr(0, 40) << "' gave " << Val(text);
  }
}

TEST(Val, ReadsTheNumberThatATextBeginsWith) {
  ExpectEachReadsAs(
      12, {"12", " \t12", "+12", "12.", "12.0", "0012", "1.2e1", "1.2E+1", "120e-1", ".12e2"});
  ExpectEachReadsAs(12, {"12 x", "12abc", "12,345", "12-3", "12 e3", "12d3", "12e", "12e+", "12e-x",
                         "12.0.5", "1.2e1.5", "12\n3", "12\377", "12１", "12½", "12$"});
  ExpectEachReadsAs(-0.5, {"-.5", " -0.5%", "-5e-1", "-00.50-"});
}

TEST(Val, GivesZeroForATextThatBeginsWithNoNumber) {
  ExpectEachReadsAs(
      0, {"",    "  ",        "abc",  ".",  "-",       "- 5",    "--5",   "+-5",     ".e5",
          "e5",  "\n5",       ",5",   ":5", "/5",      "$5",     "0x10",  "inf",     "nan",
          "NaN", "-Infinity", "１２", "−5", "\u00A05", "\303(5", "\2005", "\377\376"});
}

TEST(Val, GivesAnInfinityOrAZeroOfTheSameSignBeyondTheRangeOfADouble) {
  const std::string zeros(10'000, '0');
  const std::string nines(10'000, '9');
  ExpectEachReadsAs(kInfinity,
                    {"1e999", "1e99999999999999999999", nines, "1" + zeros, nines + "e-9"});
  ExpectEachReadsAs(-kInfinity, {"-1e309", "-" + nines});
  ExpectEachReadsAs(0.0,
                    {"1e-999", "1e-99999999999999999999", "0." + zeros + "1", "0e99999999999"});
  ExpectEachReadsAs(-0.0, {"-0", "-1e-999", "-0." + zeros + "1e5", "-0e99999999999"});
  ExpectEachReadsAs(1, {"1" + zeros + "e-10000", "0." + zeros + "1e10001", zeros + "1"});
}

TEST(Val, IsRoundedCorrectlyFromTheLeastNumberToTheGreatest) {
  ExpectEachReadsAs(5e-324, {"2.4703282292062328e-324", "4.9e-324"});
  ExpectEachReadsAs(1e-310, {"1e-310", "0." + std::string(309, '0') + "1", "1000e-313"});
  ExpectEachReadsAs(std::numeric_limits<double>::max(), {"1.7976931348623158e308"});
  ExpectEachReadsAs(9007199254740992, {"9007199254740993", "9007199254740992.9999999"});
  ExpectEachReadsAs(9007199254740994, {"9007199254740993." + std::string(800, '0') + "1"});
}

TEST(Chr, EncodesCharactersOfOneToFourBytesThatLenCounts) {
  std::string text;
  for (const std::uint32_t code : {0x7FU, 0x80U, 0x7FFU, 0x800U, 0xFFFFU, 0x10000U, 0x10FFFFU}) {
    text += Chr(code);
  }
  EXPECT_EQ(text, "\x7F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF");
  EXPECT_EQ(Len(text), 7U);
  EXPECT_EQ(Chr(0xD800) + Chr(0xDFFF) + Chr(0x110000), "\uFFFD\uFFFD\uFFFD");
}

TEST(Pow, IsTheNearestDoubleWhereLibrariesDiffer) {
  EXPECT_EQ(Bits(Pow(1.0006, 24)), 0x3FF03B64240A202D);
  EXPECT_EQ(Bits(Pow(1.0016, 4)), 0x3FF01A47027C9F94);
  EXPECT_EQ(Bits(Pow(1.0117, 22)), 0x3FF4AA85646FC31F);
}

TEST(Truncated, RoundsTowardZeroAndGivesTheLowestIntegerBeyondTheRange) {
  constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();
  EXPECT_EQ(Truncated(-60.9), -60);
  EXPECT_EQ(Truncated(9223372036854774784.0), 9223372036854774784);
  EXPECT_EQ(Truncated(-9223372036854775808.0), kLowest);
  for (const double beyond : {9223372036854775808.0, -9223372036854777856.0, kInfinity, -kInfinity,
                              std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(Truncated(beyond), kLowest) << beyond;
  }
}

}  // namespace
}  // namespace fundlet
