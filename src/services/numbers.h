#pragma once

#include <cmath>
#include <cstdint>

namespace fundlet {

inline double Abs(double number) { return std::fabs(number); }

// x to the power y; Pow(x, 0) is 1. With x from 1 to 2 and y a whole number from 0 to 63, as they
// are in every plan that is solved, it is the double nearest to the power, on every machine: C
// libraries differ in the last bits.
double Pow(double x, double y);

// The nearest whole number; a number just between two goes away from zero.
inline double Round(double number) { return std::round(number); }

// A number truncated toward zero. What no signed 64-bit integer holds, not-a-number and the
// infinities among it, gives the most negative one.
std::int64_t Truncated(double number);

}  // namespace fundlet
