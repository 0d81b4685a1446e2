#pragma once

#include <cmath>
#include <cstdint>

namespace fundlet {

inline double Abs(double number) { return std::fabs(number); }

// x to the power y; Pow(x, 0) is 1. With x from 1 to 2 and a whole y from 0 to 63, as in every
// valid plan, the result is the double nearest to the power on every machine, because C libraries
// differ in the last bits; otherwise it is that of std::pow.
double Pow(double x, double y);

// The nearest whole number, halves away from zero.
inline double Round(double number) { return std::round(number); }

// The number truncated toward zero. A number beyond the range of a signed 64-bit integer, an
// infinity and not-a-number give the most negative integer.
std::int64_t Truncated(double number);

}  // namespace fundlet
