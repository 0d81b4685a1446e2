#pragma once

#include <functional>

#include "desktop/controls/control.h"

namespace fundlet {

// A button with a caption. A click presses it without moving the focus; Tab moves the focus to it,
// and the space bar then presses it.
class PushButton : public TextControl {
 public:
  explicit PushButton(ControlOwner& owner);

  std::string Caption() const;
  void SetCaption(std::string_view caption);
  bool IsDefault() const;                    // whether Return presses the button
  bool IsCancel() const { return cancel_; }  // whether Escape presses the button
  void SetCancel(bool is_cancel) { cancel_ = is_cancel; }

  // Presses the button as a click does; does nothing if it is disabled.
  void Press();

  // The button has been pressed.
  std::function<void(PushButton&)> Action;

  PropertyTable Properties() const override;

 protected:
  std::string WidestText() const override { return Caption(); }
  int WidthForText() const override;

 private:
  bool cancel_ = false;
};

}  // namespace fundlet
