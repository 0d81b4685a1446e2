#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Text services. Every text is UTF-8. None of them depends on the locale.
namespace fundlet {

// The number that a text begins with: after any blanks and tabs, optionally a sign, then at least
// one decimal digit with at most one point before, among or behind the digits, then optionally e or
// E, a sign or none, and at least one digit. Reading stops at the first character that cannot
// belong to the number, a comma among them. Correctly rounded; too large a number gives an infinity
// of its sign, too small a one a zero of its sign, and a text that begins with no number gives 0.
double Val(std::string_view text);

// The decimal digits of a whole number, with a leading minus sign when it is negative.
std::string Str(std::int64_t number);

// The number of characters in a text.
std::size_t Len(std::string_view text);

// The one-character text of a code point; U+FFFD for a number that is none.
std::string Chr(std::uint32_t code);

// The source with every occurrence of a text replaced by another, from left to right; the source
// unchanged where the text to replace is empty.
std::string ReplaceAll(std::string_view source, std::string_view old_text,
                       std::string_view new_text);

}  // namespace fundlet
