#pragma once

#include <QFocusEvent>

#include "desktop/base/run_state.h"
#include "desktop/controls/control.h"

namespace fundlet {

// A Qt widget that reports to its window when it gains or loses the keyboard focus. An open menu
// does not count as a loss.
template <typename Widget>
class FocusReporting : public Widget {
 public:
  // Sets the control that the widget belongs to. To be called once, in the control's constructor.
  void AttachTo(Control& control) { control_ = &control; }

 protected:
  Control& Attached() const { return *control_; }
  ControlOwner& Owner() const { return control_->Owner(); }

  void focusInEvent(QFocusEvent* event) override {
    QFocusEvent for_qt(ForQt(*event));
    Widget::focusInEvent(&for_qt);
    // If the window becomes active while a handler runs, its activation is delivered afterwards and
    // decides the focus; the focus that Qt restores before that is ignored.
    const bool chosen_by_qt = event->reason() == Qt::ActiveWindowFocusReason && Gate().Busy() &&
                              Owner().Focused() == nullptr;
    if (!chosen_by_qt) Owner().OnFocusGained(*control_);
  }

  void focusOutEvent(QFocusEvent* event) override {
    QFocusEvent for_qt(ForQt(*event));
    Widget::focusOutEvent(&for_qt);
    const bool with_window = event->reason() == Qt::ActiveWindowFocusReason;
    const bool keeps_focus = with_window && !control_->LosesFocusWithWindow();
    if (!IsForMenu(*event) && !keeps_focus) Owner().OnFocusLost(*control_);
  }

 private:
  static bool IsForMenu(const QFocusEvent& event) {
    return event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason;
  }
  // QLineEdit keeps its selection while a popup has the focus, but not while the menu bar has it.
  // The commands of both act on the selection.
  static QFocusEvent ForQt(const QFocusEvent& event) {
    return QFocusEvent(event.type(), IsForMenu(event) ? Qt::PopupFocusReason : event.reason());
  }

  Control* control_ = nullptr;
};

}  // namespace fundlet
