#include "plan/entry_fields.h"

#include <variant>

#include "services/format.h"
#include "services/numbers.h"
#include "services/text.h"

namespace fundlet {

std::int64_t IntegerReading(std::string_view text) { return Truncated(Val(text)); }
double PercentReading(std::string_view text) { return Val(text) / 100.0; }
double CurrencyReading(std::string_view text) { return Val(ReplaceAll(text, ",", "")); }

namespace {

using Whole = std::int64_t Plan::*;
struct Percent {
  double Plan::*value;
};
struct Currency {
  double Plan::*value;
  std::string_view mask;
};
// How a field is read and shown, and the parameter behind it.
using Parameter = std::variant<Whole, Percent, Currency>;

constexpr std::array<Parameter, 8> kParameters = {
    Whole{&Plan::StartYear},
    Whole{&Plan::StartAge},
    Whole{&Plan::YearsLeft},
    Percent{&Plan::COLA},
    Currency{&Plan::StartFundlet, mask::kDollars},
    Percent{&Plan::FundletAPR},
    Currency{&Plan::SocialSecurity, mask::kSocialSecurity},
    Currency{&Plan::EndFundlet, mask::kDollars},
};

const Parameter& ParameterOf(FocusCode field) {
  return kParameters.at(static_cast<std::size_t>(field) - 1);
}

struct Reader {
  Plan& plan;
  std::string_view text;

  void operator()(Whole value) const { plan.*value = IntegerReading(text); }
  void operator()(Percent rate) const { plan.*rate.value = PercentReading(text); }
  void operator()(Currency money) const { plan.*money.value = CurrencyReading(text); }
};

struct Shower {
  const Plan& plan;
  std::string_view percent_mask;

  std::string operator()(Whole value) const { return Str(plan.*value); }
  std::string operator()(Percent rate) const {
    return Format(100.0 * plan.*rate.value, percent_mask);
  }
  std::string operator()(Currency money) const { return Format(plan.*money.value, money.mask); }
};

}  // namespace

void ReadField(Plan& plan, FocusCode field, std::string_view text) {
  std::visit(Reader{plan, text}, ParameterOf(field));
}

std::string ShownText(const Plan& plan, FocusCode field) {
  return std::visit(Shower{plan, mask::kPercent}, ParameterOf(field));
}

void LeaveField(Plan& plan, FocusCode field, EntryForm& form) {
  ReadField(plan, field, form.Text(field));
  form.SetText(field, std::visit(Shower{plan, mask::kPercentLeft}, ParameterOf(field)));
}

void EnterField(Plan& plan, FocusCode field, EntryForm& form) {
  form.SelectAll(field);
  plan.TheFocus = static_cast<std::int64_t>(field);
}

void ReadAllFields(Plan& plan, const EntryForm& form) {
  for (const FocusCode field : kFocusCodes) ReadField(plan, field, form.Text(field));
}

void DisplayParameters(const Plan& plan, EntryForm& form) {
  for (const FocusCode field : kFocusCodes) form.SetText(field, ShownText(plan, field));
}

void Refocus(const Plan& plan, EntryForm& form) {
  DisplayParameters(plan, form);
  for (const FocusCode field : kFocusCodes) {
    if (plan.TheFocus != static_cast<std::int64_t>(field)) continue;
    form.SetFocus(field);
    form.SelectAll(field);
    return;
  }
}

std::string ResultText(double annual_draw) {
  const auto shown_draw = Truncated(Round(annual_draw));
  return "Initial Year Draw:  $" + Format(static_cast<double>(shown_draw), mask::kDraw);
}

}  // namespace fundlet
