#include "services/numbers.h"

#include <array>
#include <limits>

namespace fundlet {

namespace {

// A number as a double and what that leaves of it, so that it has twice the digits.
struct Twofold {
  double head;
  double rest;
};

// The product. That of the heads is exact: each half of a double has so few digits that the
// products of the halves are not rounded.
Twofold Times(const Twofold& number, double factor) {
  const auto upper_half = [](double whole) {
    const double scaled = 134217729.0 * whole;  // 2 to the power 27, and 1
    return scaled - (scaled - whole);
  };
  const double product = number.head * factor;
  const double a = upper_half(number.head);
  const double b = upper_half(factor);
  const double a_rest = number.head - a;
  const double b_rest = factor - b;
  const double rounding = ((a * b - product) + a * b_rest + a_rest * b) + a_rest * b_rest;
  const double rest = rounding + number.rest * factor;
  const double head = product + rest;
  return {head, rest - (head - product)};
}

}  // namespace

double Pow(double x, double y) {
  constexpr int kMost = 63;
  const bool in_range = x >= 1 && x <= 2 && y >= 0 && y <= kMost && y == std::floor(y);
  if (!in_range) return std::pow(x, y);
  // A solve asks for the powers of one base again and again.
  thread_local double base = 1.0;
  thread_local std::array<Twofold, kMost + 1> powers = {{{1.0, 0.0}}};
  thread_local std::size_t known = 0;
  if (x != base) {
    base = x;
    known = 0;
  }
  const auto wanted = static_cast<std::size_t>(y);
  for (; known < wanted; ++known) powers.at(known + 1) = Times(powers.at(known), base);
  return powers.at(wanted).head;
}

std::int64_t Truncated(double number) {
  constexpr double kLimit = 9223372036854775808.0;  // 2 to the power 63, exactly
  const bool fits = number >= -kLimit && number < kLimit;
  return fits ? static_cast<std::int64_t>(number) : std::numeric_limits<std::int64_t>::min();
}

}  // namespace fundlet
