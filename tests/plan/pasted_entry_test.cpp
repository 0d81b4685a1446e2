#include "plan/pasted_entry.h"

#include <tuple>

#include <gtest/gtest.h>

namespace fundlet {
namespace {

using enum FocusCode;

void ExpectEntries(FocusCode field, std::size_t limit,
                   const std::vector<std::pair<std::string, std::string>>& entries) {
  for (const auto& [text, entry] : entries) {
    EXPECT_EQ(PastedEntry(field, text, limit).value_or("refused"), entry) << text;
  }
}

TEST(PastedEntry, IsTheNumberOfTheTextAsTheFieldReadsIt) {
  ExpectEntries(SocialSecurity, 6,
                {{"  25,000\r\n", "25,000"}, {"250,000", "250000"}, {"$20,000.00", "20,000"}});
  ExpectEntries(StartFundlet, 11,
                {{"1,000,000,000", "1000000000"},
                 {"\u00A0$ 1\u202F250\u2007000.50 ", "1250000.50"},
                 {"1\u2019234\u2019567", "1234567"},
                 {"-€5", "-5"},
                 {"£\u22125", "-5"},
                 {"\u221212 ¥", "-12"},
                 {"2.5e+5 €", "2.5e+5"}});
  ExpectEntries(StartYear, 4, {{"2\u2009030", "2030"}, {"2030.0", "2030"}});
  ExpectEntries(StartAge, 2, {{"+65.", "65"}});
  ExpectEntries(COLA, 5, {{"3.50 %", "3.50"}, {".5", ".5"}});
}

void ExpectRefused(FocusCode field, std::size_t limit, const std::vector<std::string>& texts) {
  for (const std::string& text : texts) {
    EXPECT_EQ(PastedEntry(field, text, limit), std::nullopt) << text.substr(0, 40);
  }
}

TEST(PastedEntry, IsRefusedWhereTheFieldWouldReadAnotherNumberThanTheTextSays) {
  ExpectRefused(StartFundlet, 11, {"", ".", "$", "-", "$.", "year", std::string(1'000'000, '9')});
  ExpectRefused(StartFundlet, 11,
                {"1,2345", "12,50", "100,0000", "1234,567", "1,234,56", ",123", "0,123", "1,234,",
                 "１２", "123456789012"});
  ExpectRefused(StartFundlet, 11,
                {"1.234.567", "1.234", "100.000 €", "1.000,50", "1.234 567", "1 .5", "1. 5"});
  ExpectRefused(StartFundlet, 11,
                {"12 3456", "100 20", "1,234 567", "1'234,567", "1 234,567", "1,000\n200", "1\t000",
                 "1  000", "1\u2019234'567.123.4"});
  ExpectRefused(StartFundlet, 11, {"5e", "5 e3", "1e3.5", "1e3,000"});
  ExpectRefused(StartFundlet, 11,
                {"--5", "-$-5", "- 5", "5-", "(5)", "$5 €", "$$5", "5%", "5\u00A05", "5x"});
  ExpectRefused(StartYear, 4,
                {"1,23", "2,030", "19.9", "2.0e3", "2e3", ".0", "$2030", "20%", "20300"});
  ExpectRefused(COLA, 11, {"1,5", "3.465.0", "1,500", "3%%", "€3", "3 $", "3%$", "% 3"});
}

}  // namespace
}  // namespace fundlet
