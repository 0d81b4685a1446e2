#pragma once

#include "desktop/control.h"

namespace fundlet {

// A thin horizontal rule.
class Separator : public Control {
 public:
  explicit Separator(Window& window);
};

}  // namespace fundlet
