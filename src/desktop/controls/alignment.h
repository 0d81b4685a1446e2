#pragma once

#include <cstdint>

namespace fundlet {

// The numbers by which a property names the place of a text in its frame.
struct AlignmentNumbers {
  std::int64_t left;
  std::int64_t centre;
  std::int64_t right;
};
inline constexpr AlignmentNumbers kLabelAlignment{0, 1, 2};
inline constexpr AlignmentNumbers kFieldAlignment{0, 2, 3};  // 1 means left, too

}  // namespace fundlet
