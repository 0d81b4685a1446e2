#include "services/format.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iomanip>
#include <locale>
#include <sstream>

namespace fundlet {

namespace {

struct Mask {
  std::size_t least_whole;  // digit places before the point that are always shown
  std::size_t least_decimals;
  std::size_t most_decimals;
  bool grouped;
};

Mask Parsed(std::string_view mask) {
  const std::size_t point = std::min(mask.find('.'), mask.size());
  const std::string_view whole = mask.substr(0, point);
  const std::string_view decimals = mask.substr(point);
  const auto count = [](std::string_view part, char c) {
    return static_cast<std::size_t>(std::count(part.begin(), part.end(), c));
  };
  return {count(whole, '0'), count(decimals, '0'), count(decimals, '0') + count(decimals, '#'),
          count(whole, ',') > 0};
}

// A decimal number, its digits before and after the point.
struct Decimal {
  std::string whole;
  std::string decimals;
};

// Every digit of a finite number that is not negative: a double has at most 309 digits before the
// point and 1074 after it, so nothing is rounded here.
Decimal ExactDigits(double number) {
  constexpr int kMostDecimals = 1074;
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << std::fixed << std::setprecision(kMostDecimals) << number;
  const std::string digits = text.str();
  const std::size_t point = digits.find('.');
  return {digits.substr(0, point), digits.substr(point + 1)};
}

void AddOne(std::string& digits) {
  std::size_t raised = digits.find_last_not_of('9');
  if (raised == std::string::npos) {
    digits.insert(digits.begin(), '0');
    raised = 0;
  }
  ++digits[raised];
  std::fill(digits.begin() + static_cast<std::ptrdiff_t>(raised) + 1, digits.end(), '0');
}

Decimal Rounded(const Decimal& exact, std::size_t places) {
  std::string digits = exact.whole + exact.decimals.substr(0, places);
  if (exact.decimals[places] >= '5') AddOne(digits);
  const std::size_t split = digits.size() - places;
  return {digits.substr(0, split), digits.substr(split)};
}

std::string Grouped(const std::string& digits) {
  std::string result;
  for (std::size_t at = 0; at < digits.size(); ++at) {
    if (at > 0 && (digits.size() - at) % 3 == 0) result += ',';
    result += digits[at];
  }
  return result;
}

// Removes leading zeros, or adds those that the mask asks for.
void FitWhole(std::string& whole, std::size_t least) {
  whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
  if (whole.size() < least) whole.insert(0, least - whole.size(), '0');
}

void FitDecimals(std::string& decimals, std::size_t least) {
  const std::size_t used = decimals.find_last_not_of('0') + 1;
  decimals.resize(std::max(used, least));
}

bool AllZero(const std::string& digits) {
  return digits.find_first_not_of('0') == std::string::npos;
}

}  // namespace

std::string Format(double number, std::string_view mask) {
  if (std::isnan(number)) return "NaN";
  if (std::isinf(number)) return number < 0 ? "-1e999" : "1e999";
  const Mask parsed = Parsed(mask);
  Decimal shown = Rounded(ExactDigits(std::fabs(number)), parsed.most_decimals);
  const bool negative = number < 0 && !(AllZero(shown.whole) && AllZero(shown.decimals));
  FitWhole(shown.whole, parsed.least_whole);
  FitDecimals(shown.decimals, parsed.least_decimals);
  std::string text = negative ? "-" : "";
  text += parsed.grouped ? Grouped(shown.whole) : shown.whole;
  if (!shown.decimals.empty()) text += "." + shown.decimals;
  return text;
}

}  // namespace fundlet
