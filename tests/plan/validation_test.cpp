#include "plan/validation.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "plan/entry_fields.h"
#include "tests/plan/text_form.h"

namespace fundlet {
namespace {

using enum FocusCode;

// A field, what stands in it, what is put in its place, and why. The form's other texts make a plan
// that passes: 70 years old, 4 years left, $500,000.
const std::tuple<FocusCode, const char*, const char*, const char*> kRefusals[] = {
    {StartYear, "-1", "0", "Start year must be at least 0."},
    {StartYear, "1e99", "0", "Start year must be at least 0."},
    {StartAge, "51.9", "52", "Age must be at least 52 years old."},
    {StartAge, "", "52", "Age must be at least 52 years old."},
    {StartAge, "96", "95", "Age must be no more than 95 years old."},
    {YearsLeft, "3.9", "4", "Life expectancy must be at least 4 years."},
    {YearsLeft, "41", "40", "Life expectancy must be no more than 40 years."},
    {YearsLeft, "30", "29", "Age plus life expectancy must be less than 100 years."},
    {COLA, "-.01", "0.0", "COLA (Annual Cost of Living Adjustment) must be at least 0%."},
    {COLA, "100", "99.99", "COLA (Annual Cost of Living Adjustment) must be less than 100%."},
    {StartFundlet, "-1", "0", "Initial fundlet must be at least $0."},
    {StartFundlet, "999999999.5", "999,999,999",
     "Initial fundlet must be at less than $1 billion."},
    {FundletAPR, "-1e-9", "0.0", "After-tax fundlet APR must be at least 0%."},
    {FundletAPR, "100", "99.99", "After-tax fundlet APR must be less than 100%."},
    {SocialSecurity, "-1e999", "0", "Annual social secuity must be at least $0."},
    {SocialSecurity, "99,999.5", "99,999", "Annual social secuity must be at less than $100,000."},
    {EndFundlet, "-0.5", "0", "Terminal fundlet must be at least $0."},
    {EndFundlet, "500,000.1", "0", "Terminal fundlet must be no more than the initial fundlet."},
};

TEST(Validation, TellsOfARefusedValueOnceAndForcesOneThatPasses) {
  for (const auto& [field, text, forced, message] : kRefusals) {
    const std::string alert = std::string("alert ") + message;
    const bool forced_afterwards = alert.find("COLA") != alert.npos && text == std::string("100");
    Plan plan;
    plan.ErrorFocus = SocialSecurity;
    TextForm form;
    form.At(field) = text;
    form.while_alerting = [&, shown = forced_afterwards ? "100.0" : forced, field = field] {
      EXPECT_EQ(plan.ErrorFocus, forced_afterwards ? None : field) << alert;
      EXPECT_EQ(ShownText(plan, field), shown) << alert;
    };
    EXPECT_TRUE(ErrorDetected(plan, form)) << alert;
    EXPECT_EQ(plan.ErrorFocus, field) << alert;
    EXPECT_EQ(std::count(form.actions.begin(), form.actions.end(), alert), 1) << alert;
    EXPECT_EQ(plan.StartYear, field == StartYear ? 0 : 2010) << "the fields before it are read";
    EXPECT_EQ(plan.EndFundlet, 0) << "and none behind it: " << alert;
    EXPECT_EQ(form.At(field), text) << "a refused field is not rewritten";
    EXPECT_EQ(form.At(field) = ShownText(plan, field), forced) << alert;
    form.while_alerting = [] {};
    ErrorDetected(plan, form);
    EXPECT_NE(form.actions.back(), alert);
  }
}

TEST(Validation, AcceptsEachValueAtItsBound) {
  const std::array<std::string, 8> plans[] = {
      {"-0.9", "60", "39", "-0", "999,999,999", "99.99", "99,999", "999999999"},
      {"", "95.9", "4", "99.99", "0", "0", "0", "0"},
      {"9999", "52", "40.9", "0", "1e3", "0", ",,", "1,000"}};
  for (const auto& texts : plans) {
    Plan plan;
    TextForm form;
    form.texts = texts;
    plan.ErrorFocus = SocialSecurity;
    EXPECT_FALSE(ErrorDetected(plan, form)) << form.actions.back();
    EXPECT_EQ(plan.ErrorFocus, None);
  }
}

TEST(Validation, RewritesAndSelectsTheFieldsOfMoneyThatPass) {
  Plan plan;
  TextForm form;
  form.texts = {"2010.5", "70", "4", "2.555", "1234567.8", "5", "1234", "-0"};
  EXPECT_FALSE(ErrorDetected(plan, form));
  EXPECT_EQ(form.actions, (std::vector<std::string>{"text 5 1,234,568", "select 5", "text 7 1,234",
                                                    "select 7", "text 8 0", "select 8"}));
}

}  // namespace
}  // namespace fundlet
