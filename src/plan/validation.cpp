#include "plan/validation.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include "plan/entry_fields.h"

namespace fundlet {

namespace {

// Whether the alert of a refused value is seen before or after the value is forced. The one that
// comes before leaves the old value in the plan while the alert is open.
enum class Told { AfterForcing, BeforeForcing };

struct Rule {
  FocusCode field;
  bool (*fails)(const Plan&);
  void (*force)(Plan&);
  Told told;
  std::string_view message;
};

// A field is read before the first rule that names it.
constexpr Rule kRules[] = {
    {FocusCode::StartYear, [](const Plan& plan) { return plan.StartYear < 0; },
     [](Plan& plan) { plan.StartYear = 0; }, Told::AfterForcing, "Start year must be at least 0."},

    {FocusCode::StartAge, [](const Plan& plan) { return plan.StartAge < 52; },
     [](Plan& plan) { plan.StartAge = 52; }, Told::AfterForcing,
     "Age must be at least 52 years old."},
    {FocusCode::StartAge, [](const Plan& plan) { return plan.StartAge > 95; },
     [](Plan& plan) { plan.StartAge = 95; }, Told::AfterForcing,
     "Age must be no more than 95 years old."},

    {FocusCode::YearsLeft, [](const Plan& plan) { return plan.YearsLeft < 4; },
     [](Plan& plan) { plan.YearsLeft = 4; }, Told::AfterForcing,
     "Life expectancy must be at least 4 years."},
    {FocusCode::YearsLeft, [](const Plan& plan) { return plan.YearsLeft > 40; },
     [](Plan& plan) { plan.YearsLeft = 40; }, Told::AfterForcing,
     "Life expectancy must be no more than 40 years."},
    {FocusCode::YearsLeft, [](const Plan& plan) { return plan.StartAge + plan.YearsLeft > 99; },
     [](Plan& plan) { plan.YearsLeft = 99 - plan.StartAge; }, Told::AfterForcing,
     "Age plus life expectancy must be less than 100 years."},

    {FocusCode::COLA, [](const Plan& plan) { return plan.COLA < 0.0; },
     [](Plan& plan) { plan.COLA = 0.0; }, Told::AfterForcing,
     "COLA (Annual Cost of Living Adjustment) must be at least 0%."},
    {FocusCode::COLA, [](const Plan& plan) { return plan.COLA >= 1.0; },
     [](Plan& plan) { plan.COLA = 0.9999; }, Told::BeforeForcing,
     "COLA (Annual Cost of Living Adjustment) must be less than 100%."},

    {FocusCode::StartFundlet, [](const Plan& plan) { return plan.StartFundlet < 0.0; },
     [](Plan& plan) { plan.StartFundlet = 0.0; }, Told::AfterForcing,
     "Initial fundlet must be at least $0."},
    {FocusCode::StartFundlet, [](const Plan& plan) { return plan.StartFundlet > 999999999.0; },
     [](Plan& plan) { plan.StartFundlet = 999999999.0; }, Told::AfterForcing,
     "Initial fundlet must be at less than $1 billion."},

    {FocusCode::FundletAPR, [](const Plan& plan) { return plan.FundletAPR < 0.0; },
     [](Plan& plan) { plan.FundletAPR = 0.0; }, Told::AfterForcing,
     "After-tax fundlet APR must be at least 0%."},
    {FocusCode::FundletAPR, [](const Plan& plan) { return plan.FundletAPR >= 1.0; },
     [](Plan& plan) { plan.FundletAPR = 0.9999; }, Told::AfterForcing,
     "After-tax fundlet APR must be less than 100%."},

    {FocusCode::SocialSecurity, [](const Plan& plan) { return plan.SocialSecurity < 0.0; },
     [](Plan& plan) { plan.SocialSecurity = 0.0; }, Told::AfterForcing,
     "Annual social secuity must be at least $0."},
    {FocusCode::SocialSecurity, [](const Plan& plan) { return plan.SocialSecurity > 99999.0; },
     [](Plan& plan) { plan.SocialSecurity = 99999.0; }, Told::AfterForcing,
     "Annual social secuity must be at less than $100,000."},

    {FocusCode::EndFundlet, [](const Plan& plan) { return plan.EndFundlet < 0.0; },
     [](Plan& plan) { plan.EndFundlet = 0.0; }, Told::AfterForcing,
     "Terminal fundlet must be at least $0."},
    {FocusCode::EndFundlet, [](const Plan& plan) { return plan.EndFundlet > plan.StartFundlet; },
     [](Plan& plan) { plan.EndFundlet = 0.0; }, Told::AfterForcing,
     "Terminal fundlet must be no more than the initial fundlet."},
};

// The fields that are rewritten and selected once they have passed. What the solver works on is
// then what they show.
bool RewrittenOnPass(FocusCode field) {
  return field == FocusCode::StartFundlet || field == FocusCode::SocialSecurity ||
         field == FocusCode::EndFundlet;
}

void Refuse(const Rule& rule, Plan& plan, EntryForm& form) {
  const auto force = [&] {
    plan.ErrorFocus = static_cast<std::int64_t>(rule.field);
    rule.force(plan);
  };
  if (rule.told == Told::AfterForcing) force();
  form.Alert(std::string(rule.message));
  if (rule.told == Told::BeforeForcing) force();
}

// Reads one field, and refuses or accepts it by its rules.
bool FieldRefused(Plan& plan, FocusCode field, EntryForm& form) {
  ReadField(plan, field, form.Text(field));
  const auto* const failed =
      std::find_if(std::begin(kRules), std::end(kRules),
                   [&](const Rule& rule) { return rule.field == field && rule.fails(plan); });
  if (failed != std::end(kRules)) {
    Refuse(*failed, plan, form);
    return true;
  }
  if (RewrittenOnPass(field)) {
    form.SetText(field, ShownText(plan, field));
    form.SelectAll(field);
  }
  return false;
}

}  // namespace

bool ErrorDetected(Plan& plan, EntryForm& form) {
  plan.ErrorFocus = 0;
  return std::any_of(kFocusCodes.begin(), kFocusCodes.end(),
                     [&](FocusCode field) { return FieldRefused(plan, field, form); });
}

}  // namespace fundlet
