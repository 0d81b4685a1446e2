#include "plan/validation.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "plan/entry_fields.h"
#include "services/numbers.h"

namespace fundlet {

namespace {

using enum FocusCode;

// A value in the unit of its field: a constant, or a function of other parameters.
struct Value {
  constexpr Value(double constant) : constant_(constant) {}
  constexpr Value(double (*of)(const Plan&)) : of_(of) {}
  double In(const Plan& plan) const { return of_ != nullptr ? of_(plan) : constant_; }

 private:
  double constant_ = 0.0;
  double (*of_)(const Plan&) = nullptr;
};

double YearsToAge99(const Plan& plan) { return 99.0 - static_cast<double>(plan.StartAge); }
double InitialFundlet(const Plan& plan) { return plan.StartFundlet; }

enum class Fails { Below, Above, AtOrAbove };

// The optional column is the last one. NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct Rule {
  FocusCode field;
  Fails fails;
  Value limit;
  Value forced;  // for the same field; must pass all its rules
  std::string_view message;
  // The plan holds the refused value until the alert is closed, instead of the forced value.
  bool alert_first = false;
};

// The rules of each field stand in the order of the tests.
constexpr Rule kRules[] = {
    {StartYear, Fails::Below, 0.0, 0.0, "Start year must be at least 0."},
    {StartAge, Fails::Below, 52, 52, "Age must be at least 52 years old."},
    {StartAge, Fails::Above, 95, 95, "Age must be no more than 95 years old."},
    {YearsLeft, Fails::Below, 4, 4, "Life expectancy must be at least 4 years."},
    {YearsLeft, Fails::Above, 40, 40, "Life expectancy must be no more than 40 years."},
    {YearsLeft, Fails::Above, YearsToAge99, YearsToAge99,
     "Age plus life expectancy must be less than 100 years."},
    {COLA, Fails::Below, 0.0, 0.0, "COLA (Annual Cost of Living Adjustment) must be at least 0%."},
    {COLA, Fails::AtOrAbove, 1.0, 0.9999,
     "COLA (Annual Cost of Living Adjustment) must be less than 100%.", /*alert_first=*/true},
    {StartFundlet, Fails::Below, 0.0, 0.0, "Initial fundlet must be at least $0."},
    {StartFundlet, Fails::Above, 999'999'999, 999'999'999,
     "Initial fundlet must be at less than $1 billion."},
    {FundletAPR, Fails::Below, 0.0, 0.0, "After-tax fundlet APR must be at least 0%."},
    {FundletAPR, Fails::AtOrAbove, 1.0, 0.9999, "After-tax fundlet APR must be less than 100%."},
    {SocialSecurity, Fails::Below, 0.0, 0.0, "Annual social secuity must be at least $0."},
    {SocialSecurity, Fails::Above, 99'999, 99'999,
     "Annual social secuity must be at less than $100,000."},
    {EndFundlet, Fails::Below, 0.0, 0.0, "Terminal fundlet must be at least $0."},
    {EndFundlet, Fails::Above, InitialFundlet, 0.0,
     "Terminal fundlet must be no more than the initial fundlet."},
};

// The conversion is exact: a whole number has just been read from a double.
double ValueIn(const Plan& plan, const Parameter& parameter) {
  return parameter.whole != nullptr ? static_cast<double>(plan.*parameter.whole)
                                    : plan.*parameter.Real();
}

bool Failing(const Rule& rule, const Plan& plan) {
  const double value = ValueIn(plan, ParameterOf(rule.field));
  const double limit = rule.limit.In(plan);
  if (rule.fails == Fails::Below) return value < limit;
  return value > limit || (rule.fails == Fails::AtOrAbove && value == limit);
}

void Refuse(const Rule& rule, Plan& plan, EntryForm& form) {
  if (rule.alert_first) form.Alert(std::string(rule.message));
  plan.ErrorFocus = rule.field;
  const Parameter& parameter = ParameterOf(rule.field);
  const double forced = rule.forced.In(plan);
  if (parameter.whole != nullptr) {
    plan.*parameter.whole = Truncated(forced);
  } else {
    plan.*parameter.Real() = forced;
  }
  if (!rule.alert_first) form.Alert(std::string(rule.message));
}

// Reads one field and tests it by its rules; true if one of them refuses it.
bool FieldRefused(Plan& plan, FocusCode field, EntryForm& form) {
  ReadField(plan, field, form.Text(field));
  for (const Rule& rule : kRules) {
    if (rule.field != field || !Failing(rule, plan)) continue;
    Refuse(rule, plan, form);
    return true;
  }
  if (ParameterOf(field).money != nullptr) {
    form.SetText(field, ShownText(plan, field));
    form.SelectAll(field);
  }
  return false;
}

}  // namespace

bool ErrorDetected(Plan& plan, EntryForm& form) {
  plan.ErrorFocus = None;
  return std::any_of(kFocusCodes.begin(), kFocusCodes.end(),
                     [&](FocusCode field) { return FieldRefused(plan, field, form); });
}

}  // namespace fundlet
