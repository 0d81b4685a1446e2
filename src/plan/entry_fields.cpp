#include "plan/entry_fields.h"

#include <array>

#include "services/format.h"
#include "services/numbers.h"
#include "services/text.h"

namespace fundlet {

std::int64_t IntegerReading(std::string_view text) { return Truncated(Val(text)); }
double PercentReading(std::string_view text) { return Val(text) / 100.0; }
double CurrencyReading(std::string_view text) { return Val(ReplaceAll(text, ",", "")); }

const Parameter& ParameterOf(FocusCode field) {
  static constexpr auto kByCode = std::to_array<Parameter>({
      {.whole = &Plan::StartYear},
      {.whole = &Plan::StartAge},
      {.whole = &Plan::YearsLeft},
      {.rate = &Plan::COLA},
      {.money = &Plan::StartFundlet, .money_mask = mask::kDollars},
      {.rate = &Plan::FundletAPR},
      {.money = &Plan::SocialSecurity, .money_mask = mask::kSocialSecurity},
      {.money = &Plan::EndFundlet, .money_mask = mask::kDollars},
  });
  static_assert(kByCode.size() == kFieldCount);
  return kByCode.at(static_cast<std::size_t>(field) - 1);
}

void ReadField(Plan& plan, FocusCode field, std::string_view text) {
  const Parameter& parameter = ParameterOf(field);
  if (parameter.whole != nullptr) plan.*parameter.whole = IntegerReading(text);
  if (parameter.rate != nullptr) plan.*parameter.rate = PercentReading(text);
  if (parameter.money != nullptr) plan.*parameter.money = CurrencyReading(text);
}

namespace {

std::string TextOf(const Plan& plan, FocusCode field, std::string_view rate_mask) {
  const Parameter& parameter = ParameterOf(field);
  if (parameter.whole != nullptr) return Str(plan.*parameter.whole);
  if (parameter.rate != nullptr) return Format(100.0 * plan.*parameter.rate, rate_mask);
  return Format(plan.*parameter.money, parameter.money_mask);
}

}  // namespace

std::string ShownText(const Plan& plan, FocusCode field) {
  return TextOf(plan, field, mask::kPercent);
}

void LeaveField(Plan& plan, FocusCode field, EntryForm& form) {
  ReadField(plan, field, form.Text(field));
  form.SetText(field, TextOf(plan, field, mask::kPercentAfterEditing));
}

void EnterField(Plan& plan, FocusCode field, EntryForm& form) {
  form.SelectAll(field);
  plan.TheFocus = field;
}

void ReadAllFields(Plan& plan, const EntryForm& form) {
  for (const FocusCode field : kFocusCodes) ReadField(plan, field, form.Text(field));
}

void DisplayParameters(const Plan& plan, EntryForm& form) {
  for (const FocusCode field : kFocusCodes) form.SetText(field, ShownText(plan, field));
}

void Refocus(const Plan& plan, EntryForm& form) {
  DisplayParameters(plan, form);
  if (plan.TheFocus == FocusCode::None) return;
  form.SetFocus(plan.TheFocus);
  form.SelectAll(plan.TheFocus);
}

std::string ResultText(double annual_draw) {
  const auto shown_draw = Truncated(Round(annual_draw));
  return "Initial Year Draw:  $" + Format(static_cast<double>(shown_draw), mask::kDraw);
}

}  // namespace fundlet
