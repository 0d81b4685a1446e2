#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace fundlet {

// The numbers of the entry fields. Their order is also that on the screen, in the parameters file
// and in the validation.
enum class FocusCode : std::int64_t {
  None,
  StartYear,
  StartAge,
  YearsLeft,
  COLA,
  StartFundlet,
  FundletAPR,
  SocialSecurity,
  EndFundlet,
  NumberOfCodes,  // None included; itself no code
};

inline constexpr std::size_t kFieldCount = static_cast<std::size_t>(FocusCode::NumberOfCodes) - 1;

// All codes of fields, in that order.
inline constexpr std::array<FocusCode, kFieldCount> kFocusCodes = [] {
  std::array<FocusCode, kFieldCount> codes{};
  for (int code = 1; FocusCode & place : codes) place = static_cast<FocusCode>(code++);
  return codes;
}();

// A retirement plan: the eight parameters that the user edits, the result of the last solve, and
// the field that the user was in. Any member may hold any value: only ErrorDetected tests ranges.
// There is one record for the run, and the operations on it are free functions.
//
// Money is in dollars, rates are fractions per year (0.02 is 2%), ages and years are whole.
struct Plan {
  // Dollars. Element 0 is the Fundlet at the start of the first year, element y the Fundlet at the
  // end of plan year y. Never empty.
  std::vector<double> Balance = {0.0};

  std::int64_t YearsLeft = 0;   // life expectancy: the number of plan years
  std::int64_t StartYear = 0;   // the calendar year on whose 1 January the draws begin
  std::int64_t StartAge = 0;    // age on that day
  double COLA = 0.0;            // cost of living adjustment, a fraction per year
  double StartFundlet = 0.0;    // dollars at the beginning of the first year
  double SocialSecurity = 0.0;  // dollars in the first year, after tax
  double FundletAPR = 0.0;      // earned after tax, a fraction per year, credited monthly
  double EndFundlet = 0.0;      // dollars that are to remain at the end of the last year

  double AnnualDraw = 0.0;  // the first year's draw as solved, dollars, not rounded
  bool OKtoPrint = false;   // a schedule may be saved

  // Whole dollars. Element y - 1 is the total drawn in plan year y. Never empty.
  std::vector<std::int64_t> Drawing = {0};
  // Persons of 100,000 born who are still alive, by age in years. Never empty.
  std::vector<std::int64_t> Surviving = {0};

  bool WindowOpened = false;               // opened, and not yet activated for the first time
  FocusCode TheFocus = FocusCode::None;    // the field that last received the focus
  FocusCode ErrorFocus = FocusCode::None;  // the field that the latest validation refused
};

}  // namespace fundlet
