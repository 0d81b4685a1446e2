#include "services/numbers.h"

#include <array>
#include <limits>

namespace fundlet {

namespace {

// A number with twice the digits of a double: the nearest double, and the difference from it.
struct Twofold {
  double head;
  double rest;
};

// The product. The product of the heads is exact: each half of a double has so few digits that the
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

constexpr int kHighestPower = 63;

// The powers of one base that have been needed so far, because a solve needs the same ones at each
// level.
struct Powers {
  double base = 1.0;
  std::size_t known = 0;
  std::array<Twofold, kHighestPower + 1> values = {{{1.0, 0.0}}};

  double Of(double x, std::size_t exponent) {
    if (x != base) {
      base = x;
      known = 0;
    }
    for (; known < exponent; ++known) values.at(known + 1) = Times(values.at(known), base);
    return values.at(exponent).head;
  }
};

thread_local Powers powers;

}  // namespace

double Pow(double x, double y) {
  const bool kept = x >= 1 && x <= 2 && y >= 0 && y <= kHighestPower && y == std::floor(y);
  return kept ? powers.Of(x, static_cast<std::size_t>(y)) : std::pow(x, y);
}

std::int64_t Truncated(double number) {
  constexpr double kLimit = 9223372036854775808.0;  // 2 to the power 63, exactly
  const bool fits = number >= -kLimit && number < kLimit;
  return fits ? static_cast<std::int64_t>(number) : std::numeric_limits<std::int64_t>::min();
}

}  // namespace fundlet
