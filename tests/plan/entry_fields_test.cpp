#include "plan/entry_fields.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/plan/text_form.h"

namespace fundlet {
namespace {

using enum FocusCode;

TEST(Reading, OfAWholeNumberTruncatesAndOnlyThatOfMoneyLeavesCommasOut) {
  EXPECT_EQ(IntegerReading("60.9"), 60);
  EXPECT_EQ(IntegerReading("1,23"), 1);
  EXPECT_EQ(IntegerReading("1e999"), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(CurrencyReading(",1,2,34.56,7"), 1234.567);
  EXPECT_EQ(PercentReading("2.035"), 2.035 / 100.0);
  EXPECT_EQ(PercentReading("1,5"), 0.01);
}

TEST(PastedEntry, IsTheNumberThatWasCopiedOrNothing) {
  constexpr const char* kRefused = "refused";
  const std::tuple<FocusCode, std::size_t, const char*, const char*> cases[] = {
      {SocialSecurity, 6, "  25,000\r\n", "25,000"},
      {SocialSecurity, 6, "250,000", "250000"},
      {SocialSecurity, 6, "1,234,567", kRefused},
      {StartFundlet, 11, "1,000,000,000", "1000000000"},
      {StartFundlet, 11, "\u00A0$ 1\u202F250\u00A0000.50 ", "1250000.50"},
      {StartFundlet, 11, "-€5", "-5"},
      {StartFundlet, 11, "2.5e5 €", "2.5e5"},
      {StartFundlet, 11, "12,50", kRefused},
      {StartFundlet, 11, "1.234.567", kRefused},
      {StartFundlet, 11, "1,000\n2,000", kRefused},
      {StartFundlet, 11, "100 20", kRefused},
      {StartFundlet, 11, "5%", kRefused},
      {StartFundlet, 11, "", kRefused},
      {StartYear, 4, "1,23", kRefused},
      {StartYear, 4, "2 030", "2030"},
      {StartYear, 4, "year", kRefused},
      {COLA, 5, "3.5 %", "3.5"},
      {COLA, 5, "3.465.0", kRefused},
      {COLA, 5, "1,5", kRefused},
      {COLA, 5, ".", kRefused},
  };
  for (const auto& [field, limit, pasted, entry] : cases) {
    EXPECT_EQ(PastedEntry(field, pasted, limit).value_or(kRefused), entry) << pasted;
  }
  EXPECT_EQ(PastedEntry(StartFundlet, std::string(1'000'000, '9'), 11), std::nullopt);
}

TEST(LeaveField, ShowsWhatWasReadAndTestsNoRange) {
  const std::tuple<FocusCode, const char*, const char*> cases[] = {
      {StartYear, "19.9", "19"},
      {StartAge, "", "0"},
      {YearsLeft, "-5", "-5"},
      {COLA, "100", "100.0"},
      {COLA, "3.125", "3.13"},
      {FundletAPR, "1e999", "1e999"},
      {StartFundlet, "1000000000", "1,000,000,000"},
      {StartFundlet, "1,234.56", "1,235"},
      {SocialSecurity, "abc", "0"},
      {EndFundlet, "-0.4", "0"},
  };
  Plan plan;
  for (const auto& [field, typed, shown] : cases) {
    TextForm form;
    form.At(field) = typed;
    LeaveField(plan, field, form);
    EXPECT_EQ(form.actions, std::vector{"text " + TextForm::Code(field) + " " + shown}) << typed;
  }
  EXPECT_EQ(plan.COLA, 3.125 / 100.0) << "the text is rounded, the plan is not";
  EXPECT_EQ(plan.StartFundlet, 1234.56);
}

TEST(Refocus, ShowsAllParametersAndSelectsTheLastField) {
  Plan plan;
  TextForm form;
  ReadAllFields(plan, form);
  plan.COLA = 0.03125;
  std::vector<std::string> shown = {"text 1 2010",   "text 2 70",      "text 3 4",
                                    "text 4 3.125",  "text 5 500,000", "text 6 5.0",
                                    "text 7 20,000", "text 8 100,000"};
  Refocus(plan, form);
  EXPECT_EQ(form.actions, shown) << "no field has had the focus yet";
  EnterField(plan, StartYear, form);
  form.actions.clear();
  Refocus(plan, form);
  shown.insert(shown.end(), {"focus 1", "select 1"});
  EXPECT_EQ(form.actions, shown);
}

}  // namespace
}  // namespace fundlet
