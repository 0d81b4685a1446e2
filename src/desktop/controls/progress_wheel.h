#pragma once

#include "desktop/controls/control.h"

namespace fundlet {

// A small wheel that turns while it is visible, to show that the program is busy.
class ProgressWheel : public ShapeControl {
 public:
  explicit ProgressWheel(ControlOwner& owner);
};

}  // namespace fundlet
