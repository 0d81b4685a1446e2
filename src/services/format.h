#pragma once

#include <string>
#include <string_view>

namespace fundlet {

// The text of a number under a mask. In a mask, `0` is a digit place that is always shown, `#` one
// that is shown only if the number has a digit there, `,` asks for a comma between groups of three
// shown digits, and `.` is the decimal point. Other characters in a mask are ignored.
//
// The exact binary value is rounded to the mask's decimal places, halves away from zero. A number
// with more digits before the point than the mask has places keeps them all. A negative number has
// a leading minus sign, unless it rounds to zero. An infinity gives "1e999" or "-1e999", which Val
// reads as the same infinity; not-a-number gives "NaN".
std::string Format(double number, std::string_view mask);

}  // namespace fundlet
