#include "services/text.h"

#include <algorithm>
#include <limits>
#include <locale>
#include <sstream>

namespace fundlet {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The parts of a decimal number at the front of a text.
struct Scanned {
  bool negative = false;
  std::string_view number;     // without sign, from the first digit or point
  std::int64_t magnitude = 0;  // the power of ten just above the first digit that is not 0
  bool nonzero = false;
  bool present = false;
};

constexpr std::int64_t kExponentCap = 1'000'000'000;

struct Exponent {
  std::int64_t value = 0;
  std::size_t length = 0;  // 0 where the text has no complete exponent
};

Exponent ScanExponent(std::string_view text) {
  if (text.empty() || (text[0] != 'e' && text[0] != 'E')) return {};
  std::size_t at = 1;
  const bool negative = at < text.size() && text[at] == '-';
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
  if (at >= text.size() || !IsDigit(text[at])) return {};
  std::int64_t value = 0;
  for (; at < text.size() && IsDigit(text[at]); ++at) {
    value = std::min(value * 10 + (text[at] - '0'), kExponentCap);
  }
  return {negative ? -value : value, at};
}

Scanned Scan(std::string_view text) {
  Scanned result;
  std::size_t at = text.find_first_not_of(" \t");
  if (at == std::string_view::npos) return result;
  if (text[at] == '+' || text[at] == '-') result.negative = text[at++] == '-';
  const std::size_t begin = at;
  bool point = false;
  for (; at < text.size() && (IsDigit(text[at]) || (text[at] == '.' && !point)); ++at) {
    if (text[at] == '.') {
      point = true;
      continue;
    }
    result.present = true;
    result.nonzero = result.nonzero || text[at] != '0';
    if (result.nonzero && !point) ++result.magnitude;
    if (!result.nonzero && point) --result.magnitude;
  }
  if (!result.present) return result;
  const Exponent exponent = ScanExponent(text.substr(at));
  result.magnitude += exponent.value;
  result.number = text.substr(begin, at + exponent.length - begin);
  return result;
}

}  // namespace

double Val(std::string_view text) {
  const Scanned scanned = Scan(text);
  if (!scanned.present) return 0.0;
  // A stream, since not every library reads a double with from_chars yet.
  std::istringstream number{std::string(scanned.number)};
  number.imbue(std::locale::classic());
  double value = 0.0;
  if (!(number >> value)) {
    const bool too_large = scanned.magnitude > 0;
    value = too_large ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return scanned.negative ? -value : value;
}

std::string Str(std::int64_t number) { return std::to_string(number); }

namespace {

// The length in bytes of the character that a text begins with, 1 for a byte that begins none.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char first = byte(0);
  std::size_t length = 1;
  if (first >= 0xC2 && first <= 0xDF) length = 2;
  if (first >= 0xE0 && first <= 0xEF) length = 3;
  if (first >= 0xF0 && first <= 0xF4) length = 4;
  if (length > text.size()) return 1;
  for (std::size_t at = 1; at < length; ++at) {
    if (byte(at) < 0x80 || byte(at) > 0xBF) return 1;
  }
  const bool overlong = (first == 0xE0 && byte(1) < 0xA0) || (first == 0xF0 && byte(1) < 0x90);
  const bool no_code = (first == 0xED && byte(1) > 0x9F) || (first == 0xF4 && byte(1) > 0x8F);
  return length > 1 && (overlong || no_code) ? 1 : length;
}

}  // namespace

std::size_t Len(std::string_view text) {
  std::size_t count = 0;
  while (!text.empty()) {
    text.remove_prefix(CharacterLength(text));
    ++count;
  }
  return count;
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
