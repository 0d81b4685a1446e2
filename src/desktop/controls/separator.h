#pragma once

#include "desktop/controls/control.h"

namespace fundlet {

// A thin horizontal rule.
class Separator : public ShapeControl {
 public:
  explicit Separator(ControlOwner& owner);
};

}  // namespace fundlet
