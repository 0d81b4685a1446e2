#include "plan/validation.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "plan/entry_fields.h"
#include "tests/plan/text_form.h"

namespace fundlet {

using enum FocusCode;

// A field, its invalid text, the text of the forced value, and the message. The other texts of the
// form make a valid plan: 70 years old, 4 years left, $500,000.
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
    {EndFundlet, "500,000.1", "0", "Terminal fundlet must be no more than the initial fundlet."}};

TEST(Validation, ShowsOneAlertForAnInvalidValueAndForcesAValidOne) {
  for (const auto& [field, text, forced, message] : kRefusals) {
    const std::string alert = std::string("alert ") + message;
    const bool forced_afterwards = alert.find("COLA") != alert.npos && text == std::string("100");
    Plan plan;
    plan.ErrorFocus = SocialSecurity;
    TextForm form({{field, text}});
    form.while_alerting = [&, shown = forced_afterwards ? "100.0" : forced, field = field] {
      EXPECT_EQ(plan.ErrorFocus, forced_afterwards ? None : field) << alert;
      EXPECT_EQ(ShownText(plan, field), shown) << alert;
    };
    EXPECT_TRUE(ErrorDetected(plan, form)) << alert;
    EXPECT_EQ(plan.ErrorFocus, field) << alert;
    EXPECT_EQ(std::count(form.actions.begin(), form.actions.end(), alert), 1) << alert;
    EXPECT_EQ(plan.StartYear, field == StartYear ? 0 : 2010) << "earlier fields are read";
    EXPECT_EQ(plan.EndFundlet, 0) << "later fields are not: " << alert;
    EXPECT_EQ(form.Text(field), text) << "a refused field is not rewritten";
    EXPECT_EQ(form.texts[field] = ShownText(plan, field), forced) << alert;
    form.while_alerting = [] {};
    ErrorDetected(plan, form);
    EXPECT_NE(form.actions.back(), alert);
  }
}

TEST(Validation, AcceptsEachValueAtItsBound) {
  const Texts plans[] = {
      {{StartYear, "-0.9"}, {StartAge, "60"}, {YearsLeft, "39"}, {COLA, "-0"}},
      {{StartYear, ""}, {StartAge, "95.9"}, {YearsLeft, "4"}, {COLA, "99.99"}},
      {{StartYear, "9999"}, {StartAge, "52"}, {YearsLeft, "40.9"}, {COLA, "0"}},
      {{StartFundlet, "999,999,999"}, {FundletAPR, "99.99"}, {EndFundlet, "999999999"}},
      {{StartFundlet, "0"}, {FundletAPR, "0"}, {SocialSecurity, "0"}, {EndFundlet, "0"}},
      {{StartFundlet, "1e3"}, {SocialSecurity, ",,"}, {EndFundlet, "1,000"}},
      {{SocialSecurity, "99,999"}, {EndFundlet, "-0"}}};
  for (const Texts& texts : plans) {
    Plan plan;
    TextForm form(texts);
    plan.ErrorFocus = SocialSecurity;
    EXPECT_FALSE(ErrorDetected(plan, form)) << form.actions.back();
    EXPECT_EQ(plan.ErrorFocus, None);
  }
}

TEST(Validation, RewritesAndSelectsTheFieldsOfMoneyThatPass) {
  Plan plan;
  const Texts texts = {
      {StartYear, "2010.5"},    {COLA, "2.555"},    {StartFundlet, "1234567.8"},
      {SocialSecurity, "1234"}, {EndFundlet, "-0"},
  };
  TextForm form(texts);
  EXPECT_FALSE(ErrorDetected(plan, form));
  EXPECT_EQ(form.actions,
            (std::vector<std::string>{"text StartFundlet 1,234,568", "select StartFundlet",
                                      "text SocialSecurity 1,234", "select SocialSecurity",
                                      "text EndFundlet 0", "select EndFundlet"}));
}

}  // namespace fundlet
