#pragma once

#include "desktop/controls/control.h"

namespace fundlet {

// One line of text that the user cannot edit.
class Label : public TextControl {
 public:
  explicit Label(ControlOwner& owner);

  std::string Text() const;
  void SetText(std::string_view text);
  // Makes the label's text the control's name for a screen reader.
  void SetLabelFor(const Control& control);
  // From now on, a screen reader speaks each text that is set, wherever the focus is.
  void SetAnnounced() { announced_ = true; }

  PropertyTable Properties() const override;

 protected:
  std::string WidestText() const override { return Text(); }

 private:
  bool announced_ = false;
};

}  // namespace fundlet
