#pragma once

#include <QFocusEvent>

#include "desktop/control.h"
#include "desktop/program_gate.h"
#include "desktop/window.h"

namespace fundlet {

// A widget of the toolkit that tells its window when the keyboard focus comes or goes. The time of
// a menu is no loss of focus.
template <typename Widget>
class FocusReporting : public Widget {
 public:
  FocusReporting(Window& window, Control& control) : window_(window), control_(control) {}

 protected:
  Window& Owner() const { return window_; }

  void focusInEvent(QFocusEvent* event) override {
    Widget::focusInEvent(event);
    // A window that comes back while a handler runs is given its activation afterwards, and that
    // decides where the focus is to be.
    const bool toolkits_choice = event->reason() == Qt::ActiveWindowFocusReason &&
                                 ProgramGate::Instance().Busy() && window_.Focused() == nullptr;
    if (!toolkits_choice) window_.FocusCame(control_);
  }

  void focusOutEvent(QFocusEvent* event) override {
    Widget::focusOutEvent(event);
    const bool for_a_menu =
        event->reason() == Qt::PopupFocusReason || event->reason() == Qt::MenuBarFocusReason;
    if (!for_a_menu) window_.FocusWent(control_);
  }

 private:
  Window& window_;
  Control& control_;
};

}  // namespace fundlet
