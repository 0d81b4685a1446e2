#pragma once

#include <functional>

#include "desktop/controls/control.h"

namespace fundlet {

// A button with a caption. The mouse presses it without taking the focus from a field; Tab brings
// the focus to it, and the space bar presses it then.
class PushButton : public TextControl {
 public:
  explicit PushButton(ControlOwner& owner);

  std::string Caption() const;
  void SetCaption(std::string_view caption);
  // The window's default button, which Return presses.
  void SetDefault(bool is_default);
  bool IsDefault() const { return default_; }
  // The window's cancel button, which Escape presses.
  void SetCancel(bool is_cancel) { cancel_ = is_cancel; }
  bool IsCancel() const { return cancel_; }

  // Presses the button as a person would; a dimmed one does nothing.
  void Press();

  std::function<void(PushButton&)> Action;

  PropertyTable Properties() const override;

 protected:
  std::string WidestText() const override { return Caption(); }
  int WidthForText() const override;

 private:
  bool default_ = false;
  bool cancel_ = false;
};

}  // namespace fundlet
