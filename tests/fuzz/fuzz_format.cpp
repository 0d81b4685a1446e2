#include <cmath>
#include <cstdlib>
#include <cstring>

#include "plan/entry_fields.h"
#include "services/format.h"
#include "services/text.h"

// The text of any number reads as one that is no further off than a half of its last place.
extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t count) {
  using namespace fundlet;
  double number = 0;
  if (count < sizeof number) return 0;
  std::memcpy(&number, bytes, sizeof number);
  if (std::isnan(number)) return 0;
  const struct {
    std::string_view mask;
    double half_a_place;
  } masks[] = {{mask::kDollars, 0.5},
               {mask::kSocialSecurity, 0.5},
               {mask::kPercentLeft, 0.005},
               {mask::kPercent, 0.0005}};
  for (const auto& [mask, half_a_place] : masks) {
    const double shown = CurrencyReading(Format(number, mask));
    const double rounding = std::fabs(number) * 0x1p-52;
    if (std::isinf(number) ? shown != number : std::fabs(shown - number) > half_a_place + rounding)
      std::abort();
    if (shown == 0 && std::signbit(shown)) std::abort();
  }
  return 0;
}
