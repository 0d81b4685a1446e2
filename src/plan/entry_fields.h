#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "plan/entry_form.h"
#include "plan/plan.h"

// The eight parameters and their texts. A parameter and the text of its field are two copies of one
// value; these functions copy one into the other.
namespace fundlet {

// The masks of Format for the parameters and the result; whole numbers need none.
namespace mask {
inline constexpr std::string_view kDollars = "###,###,##0";
inline constexpr std::string_view kSocialSecurity = "##,##0";
inline constexpr std::string_view kPercentAfterEditing = "#0.0#";
inline constexpr std::string_view kPercent = "##0.0##";
inline constexpr std::string_view kDraw = "#,###,###,##0";
}  // namespace mask

// The parameter behind a field: a whole number, a rate or an amount of money. Just one of the three
// pointers is set.
struct Parameter {
  using Whole = std::int64_t Plan::*;
  using Amount = double Plan::*;

  Whole whole = nullptr;
  Amount rate = nullptr;
  Amount money = nullptr;
  std::string_view money_mask = {};

  // The member that is no whole number; null for a whole number.
  Amount Real() const { return rate != nullptr ? rate : money; }
};

// The parameter of a field; throws std::out_of_range for None.
const Parameter& ParameterOf(FocusCode field);

// The three readings of a text, all by Val: a text that begins with no number reads as 0.
std::int64_t IntegerReading(std::string_view text);  // truncated toward zero; see Truncated
double PercentReading(std::string_view text);   // the text is in percent, the result a fraction
double CurrencyReading(std::string_view text);  // dollars; commas are removed first

// Reads the field's text into its parameter. Tests no range.
void ReadField(Plan& plan, FocusCode field, std::string_view text);

// The text that the field shows for its parameter, a rate with at most three decimals.
std::string ShownText(const Plan& plan, FocusCode field);

// To be called when the field has lost the focus: reads its text into the plan and rewrites it from
// there, a rate with at most two decimals. Tests no range.
void LeaveField(Plan& plan, FocusCode field, EntryForm& form);

// To be called when the field has gained the focus: selects its whole text, and sets TheFocus.
void EnterField(Plan& plan, FocusCode field, EntryForm& form);

// Reads all eight fields into the plan, in the order of their codes.
void ReadAllFields(Plan& plan, const EntryForm& form);

// Writes all eight texts from the plan. Changes neither selection nor focus.
void DisplayParameters(const Plan& plan, EntryForm& form);

// Writes all eight texts from the plan, then gives the focus to the field of TheFocus and selects
// its text; if TheFocus is None, the focus stays.
void Refocus(const Plan& plan, EntryForm& form);

// The line that shows a first year's draw, in dollars, rounded to whole dollars.
std::string ResultText(double annual_draw);

}  // namespace fundlet
