#include "services/text.h"

#include <algorithm>
#include <clocale>
#include <cstdlib>

namespace fundlet {

double Val(std::string_view text) {
  const std::size_t begin = std::min(text.find_first_not_of(" \t"), text.size());
  const std::size_t end = text.find_first_not_of("+-.0123456789eE", begin);
  // Only strtod rounds correctly in every library; it expects the locale's decimal point.
  const std::string number =
      ReplaceAll(text.substr(begin, end - begin), ".", std::localeconv()->decimal_point);
  char* behind = nullptr;
  const double value = std::strtod(number.c_str(), &behind);
  return behind != number.c_str() ? value : 0;  // not every library gives 0 for no number
}

std::string Str(std::int64_t number) { return std::to_string(number); }

std::size_t Len(std::string_view text) {
  const auto begins_character = [](char byte) { return (byte & 0xC0) != 0x80; };
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins_character));
}

std::string Chr(std::uint32_t code) {
  constexpr std::uint32_t kReplacement = 0xFFFD;
  if (code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) code = kReplacement;
  const auto tail = [code](int shift) {
    return static_cast<char>(0x80 | ((code >> shift) & 0x3F));
  };
  if (code < 0x80) return {static_cast<char>(code)};
  if (code < 0x800) return {static_cast<char>(0xC0 | (code >> 6)), tail(0)};
  if (code < 0x10000) return {static_cast<char>(0xE0 | (code >> 12)), tail(6), tail(0)};
  return {static_cast<char>(0xF0 | (code >> 18)), tail(12), tail(6), tail(0)};
}

std::string ReplaceAll(std::string_view source, std::string_view old_text,
                       std::string_view new_text) {
  if (old_text.empty()) return std::string(source);
  std::string result;
  std::size_t at = 0;
  for (std::size_t hit = source.find(old_text); hit != std::string_view::npos;
       hit = source.find(old_text, at)) {
    result.append(source.substr(at, hit - at)).append(new_text);
    at = hit + old_text.size();
  }
  return result.append(source.substr(at));
}

}  // namespace fundlet
