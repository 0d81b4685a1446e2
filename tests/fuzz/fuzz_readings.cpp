#include <cmath>
#include <cstdlib>
#include <string_view>

#include "plan/entry_fields.h"
#include "services/text.h"

// Any text reads as some number, and what a field of money shows of it reads as what is shown.
extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t count) {
  using namespace fundlet;
  const std::string_view text(bytes, count);
  if (Len(text) > count || std::isnan(Val(text))) std::abort();
  for (const FocusCode field : kFocusCodes) {
    Plan plan;
    ReadField(plan, field, text);
    const std::string shown = ShownText(plan, field);
    ReadField(plan, field, shown);
    const bool percent = field == FocusCode::COLA || field == FocusCode::FundletAPR;
    if (!percent && ShownText(plan, field) != shown) std::abort();
  }
  return 0;
}
