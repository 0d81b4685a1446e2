#pragma once

#include <iterator>
#include <ostream>
#include <string>

#include "plan/plan.h"

namespace fundlet {

// The name of a field's code, or of None.
inline std::string NameOf(FocusCode code) {
  constexpr const char* kNames[] = {"None",       "StartYear",      "StartAge",
                                    "YearsLeft",  "COLA",           "StartFundlet",
                                    "FundletAPR", "SocialSecurity", "EndFundlet"};
  static_assert(std::size(kNames) == kFieldCount + 1);
  return kNames[static_cast<std::size_t>(code)];
}

// What a failed test prints.
inline void PrintTo(FocusCode code, std::ostream* out) { *out << NameOf(code); }

}  // namespace fundlet
