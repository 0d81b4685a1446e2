#include "services/numbers.h"

#include <limits>

namespace fundlet {

std::int64_t Truncated(double number) {
  constexpr double kLimit = 9223372036854775808.0;  // 2 to the power 63, exactly
  const bool fits = number >= -kLimit && number < kLimit;
  return fits ? static_cast<std::int64_t>(number) : std::numeric_limits<std::int64_t>::min();
}

}  // namespace fundlet
