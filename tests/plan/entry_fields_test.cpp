#include "plan/entry_fields.h"

#include <gtest/gtest.h>

#include "tests/plan/text_form.h"

namespace fundlet {

using enum FocusCode;

TEST(LeaveField, ReadsTheTextAndShowsWhatWasReadWithoutATestOfItsRange) {
  const std::tuple<FocusCode, const char*, const char*> cases[] = {
      {StartYear, "19.9", "19"},
      {StartAge, "", "0"},
      {YearsLeft, "-5", "-5"},
      {YearsLeft, "1,23", "1"},
      {COLA, "100", "100.0"},
      {COLA, "1,5", "1.0"},
      {COLA, "2.035", "2.04"},
      {FundletAPR, "-1e999", "-1e999"},
      {StartFundlet, "1e999", "1e999"},
      {StartFundlet, "1000000000", "1,000,000,000"},
      {StartFundlet, ",1,2,34.56,7", "1,235"},
      {SocialSecurity, "abc", "0"},
      {EndFundlet, "-0.4", "0"}};
  Plan plan;
  for (const auto& [field, typed, shown] : cases) {
    TextForm form({{field, typed}});
    LeaveField(plan, field, form);
    EXPECT_EQ(form.actions, std::vector{"text " + NameOf(field) + " " + shown}) << typed;
  }
  EXPECT_EQ(plan.COLA, 2.035 / 100.0) << "the text is rounded, the plan is not";
  EXPECT_EQ(plan.StartFundlet, 1234.567);
}

}  // namespace fundlet
