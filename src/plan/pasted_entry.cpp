#include "plan/pasted_entry.h"

#include <algorithm>

#include "plan/entry_fields.h"
#include "services/text.h"

namespace fundlet {

namespace {

constexpr std::string_view kDigits = "0123456789";

// Characters that other programs write, and the characters that replace them here.
constexpr std::string_view kVariants[][2] = {
    {"\u00A0", " "}, {"\u2007", " "}, {"\u2009", " "}, {"\u202F", " "}, {"\u2019", "'"},
    {"\u2212", "-"}, {"£", "$"},      {"€", "$"},      {"¥", "$"},
};

// Removes the given characters from the front of the text, at most so many, and returns them.
std::string Take(std::string_view& text, std::string_view characters,
                 std::size_t most = std::string_view::npos) {
  std::string taken(text.substr(0, std::min(text.find_first_not_of(characters), most)));
  text.remove_prefix(taken.size());
  return taken;
}

// Removes digits from the front of the text, or one to three digits and groups of three that all
// have the same separator, and returns them; a comma is the only separator that is returned. Zeros
// lead no groups: "0,123" is a fraction with a decimal comma.
std::string TakeWhole(std::string_view& text) {
  std::string whole = Take(text, kDigits);
  const char separator = text.empty() ? '\0' : text.front();
  if (whole.empty() || whole.size() > 3 || whole.front() == '0') return whole;
  if (separator != ',' && separator != ' ' && separator != '\'') return whole;
  while (text.starts_with(separator) &&
         std::min(text.find_first_not_of(kDigits, 1), text.size()) == 4) {
    whole += text.substr(separator == ',' ? 0 : 1, separator == ',' ? 4 : 3);
    text.remove_prefix(4);
  }
  return whole;
}

// The parts of a pasted number, in the order of its entry, and the unit that it has.
struct Pasted {
  std::string sign;
  std::string whole;
  std::string decimals;  // with their point; empty if all are zero
  std::string exponent;
  bool currency = false;
  bool percent = false;
  bool point_may_group = false;  // "1.234" is a thousand and more where points group digits

  std::string Entry() const { return sign + whole + decimals + exponent; }
};

std::optional<Pasted> Parsed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  Pasted pasted;
  Take(text, kBlanks);
  pasted.sign = Take(text, "+-", 1);
  pasted.currency = !Take(text, "$", 1).empty();
  if (pasted.currency) Take(text, " ");
  if (pasted.sign.empty()) pasted.sign = Take(text, "+-", 1);
  pasted.whole = TakeWhole(text);
  pasted.decimals = Take(text, ".", 1);
  if (!pasted.decimals.empty()) pasted.decimals += Take(text, kDigits);
  if (pasted.whole.empty() && pasted.decimals.size() < 2) return std::nullopt;
  pasted.exponent = Take(text, "eE", 1);
  if (!pasted.exponent.empty()) {
    pasted.exponent += Take(text, "+-", 1);
    const std::string power = Take(text, kDigits);
    if (power.empty()) return std::nullopt;
    pasted.exponent += power;
  }
  Take(text, " ");
  pasted.percent = !Take(text, "%", 1).empty();
  if (!pasted.currency) pasted.currency = !Take(text, "$", 1).empty();
  Take(text, kBlanks);
  if (!text.empty()) return std::nullopt;
  if (pasted.sign == "+") pasted.sign.clear();
  pasted.point_may_group = !pasted.whole.empty() && pasted.whole.size() <= 3 &&
                           pasted.whole.front() != '0' && pasted.decimals.size() == 4;
  const bool all_zero = pasted.decimals.find_first_not_of(".0") == std::string::npos;
  if (all_zero && !pasted.whole.empty()) pasted.decimals.clear();
  return pasted;
}

bool Suits(const Pasted& pasted, const Parameter& parameter) {
  const bool commas = pasted.whole.find(',') != std::string::npos;
  if ((commas || pasted.currency) && parameter.money == nullptr) return false;
  if (pasted.point_may_group && parameter.money != nullptr) return false;
  if (pasted.percent && parameter.rate == nullptr) return false;
  return parameter.whole == nullptr || (pasted.decimals.empty() && pasted.exponent.empty());
}

}  // namespace

std::optional<std::string> PastedEntry(FocusCode field, std::string_view text, std::size_t limit) {
  constexpr std::size_t kLongest = 100;  // bytes; no field accepts so many digits
  if (text.size() > kLongest) return std::nullopt;
  std::string plain(text);
  for (const auto& [variant, character] : kVariants) plain = ReplaceAll(plain, variant, character);
  const std::optional<Pasted> pasted = Parsed(plain);
  if (!pasted || !Suits(*pasted, ParameterOf(field))) return std::nullopt;
  std::string entry = pasted->Entry();
  if (entry.size() > limit) entry = ReplaceAll(entry, ",", "");
  return entry.size() <= limit ? std::optional(entry) : std::nullopt;
}

}  // namespace fundlet
