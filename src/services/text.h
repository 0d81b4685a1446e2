#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Text services. Every text is UTF-8. None of them depends on the locale.
namespace fundlet {

// The number that a text begins with: blanks and tabs, an optional sign, at least one decimal digit
// with at most one point before, among or after the digits, and optionally an exponent: e or E, an
// optional sign and at least one digit. Reading stops at the first character that cannot belong to
// the number, such as a comma. The result is correctly rounded: an infinity of the same sign for a
// number that is too large, a zero of the same sign for one that is too small. A text that begins
// with no number gives 0.
double Val(std::string_view text);

// The decimal digits of a whole number, with a leading minus sign when it is negative.
std::string Str(std::int64_t number);

// The number of characters (code points) in a text.
std::size_t Len(std::string_view text);

// The one-character text of a code point; U+FFFD if the code is no code point.
std::string Chr(std::uint32_t code);

// The source with every occurrence of the old text replaced by the new one, from left to right; the
// source itself if the old text is empty.
std::string ReplaceAll(std::string_view source, std::string_view old_text,
                       std::string_view new_text);

}  // namespace fundlet
