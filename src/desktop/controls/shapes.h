#pragma once

#include "desktop/controls/control.h"

namespace fundlet {

// A control without text.
class ShapeControl : public Control {
 public:
  PropertyTable Properties() const override;

 protected:
  using Control::Control;
};

// A thin horizontal rule.
class Separator : public ShapeControl {
 public:
  explicit Separator(ControlOwner& owner);
};

// A small wheel that turns while it is visible, to show that the program is busy.
class ProgressWheel : public ShapeControl {
 public:
  explicit ProgressWheel(ControlOwner& owner);
};

}  // namespace fundlet
