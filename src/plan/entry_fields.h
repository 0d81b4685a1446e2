#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "plan/entry_form.h"
#include "plan/plan.h"

// The eight parameters and their texts: how each one is read into the plan and shown from it. A
// parameter and the text of its field are two copies of one value; here stands which is made from
// which.
namespace fundlet {

// The masks under which the values are shown; whole numbers need none.
namespace mask {
inline constexpr std::string_view kDollars = "###,###,##0";
inline constexpr std::string_view kSocialSecurity = "##,##0";
inline constexpr std::string_view kPercentLeft = "#0.0#";
inline constexpr std::string_view kPercent = "##0.0##";
inline constexpr std::string_view kDraw = "#,###,###,##0";
}  // namespace mask

// The parameter behind a field: a whole number, a rate or an amount of money. One of the three
// members is set.
struct Parameter {
  using Whole = std::int64_t Plan::*;
  using Amount = double Plan::*;

  Whole whole = nullptr;
  Amount rate = nullptr;
  Amount money = nullptr;
  std::string_view money_mask = {};

  Amount Real() const { return rate != nullptr ? rate : money; }
};

const Parameter& ParameterOf(FocusCode field);  // of a field, not of None

// The three readings of a text. A text that holds no number reads as 0.
std::int64_t IntegerReading(std::string_view text);  // truncated toward zero; see Truncated
double PercentReading(std::string_view text);        // percent, given as a fraction
double CurrencyReading(std::string_view text);       // dollars; commas do not count

// Reads the field's text into the parameter behind it. No range is tested.
void ReadField(Plan& plan, FocusCode field, std::string_view text);

// The parameter as its field shows it: a rate with at most three decimals.
std::string ShownText(const Plan& plan, FocusCode field);

// The field has lost the focus: its text is read into the plan and rewritten from it, a rate with
// at most two decimals.
void LeaveField(Plan& plan, FocusCode field, EntryForm& form);

// Selects the whole text of the field that the focus has come to, and remembers the field.
void EnterField(Plan& plan, FocusCode field, EntryForm& form);

// Reads all eight fields into the plan, in the order of their codes.
void ReadAllFields(Plan& plan, const EntryForm& form);

// Writes all eight texts from the plan, and touches neither selection nor focus.
void DisplayParameters(const Plan& plan, EntryForm& form);

// Shows the plan again and puts the user back on the field that last had the focus, if any had.
void Refocus(const Plan& plan, EntryForm& form);

// The line of the result for a first year's draw in dollars, which is rounded to whole ones.
std::string ResultText(double annual_draw);

}  // namespace fundlet
