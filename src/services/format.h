#pragma once

#include <string>
#include <string_view>

namespace fundlet {

// A number as text under a mask. In a mask, `0` is a digit place that is always shown, `#` one
// that is shown only when the number has a digit there, `,` asks for a comma between each group of
// three digits that are shown, and `.` is the decimal point. Any other character in a mask is
// ignored.
//
// The number is rounded to the mask's decimal places on its exact binary value, halves away from
// zero. A number with more digits before the point than the mask has places keeps them all. A
// negative number has a leading minus sign, unless it rounds to zero. An infinity gives "1e999" or
// "-1e999", which Val reads back as what it was; not-a-number gives "NaN".
std::string Format(double number, std::string_view mask);

}  // namespace fundlet
