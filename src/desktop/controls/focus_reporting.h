#pragma once

#include <QFocusEvent>

#include "desktop/base/run_state.h"
#include "desktop/controls/control.h"

namespace fundlet {

// A widget of Qt that tells its window when the keyboard focus comes or goes. The time of
// a menu is no loss of focus.
template <typename Widget>
class FocusReporting : public Widget {
 public:
  explicit FocusReporting(ControlOwner& owner) : owner_(owner) {}

  // Names the control that the widget belongs to; to be called once, when its object stands.
  void AttachTo(Control& control) { control_ = &control; }

 protected:
  ControlOwner& Owner() const { return owner_; }
  Control& Attached() const { return *control_; }

  void focusInEvent(QFocusEvent* event) override {
    QFocusEvent for_qt(ForQt(*event));
    Widget::focusInEvent(&for_qt);
    // A window that comes back while a handler runs is given its activation afterwards, and that
    // decides where the focus is to be.
    const bool chosen_by_qt = event->reason() == Qt::ActiveWindowFocusReason && Gate().Busy() &&
                              owner_.Focused() == nullptr;
    if (!chosen_by_qt) owner_.OnFocusGained(*control_);
  }

  void focusOutEvent(QFocusEvent* event) override {
    QFocusEvent for_qt(ForQt(*event));
    Widget::focusOutEvent(&for_qt);
    const bool with_window = event->reason() == Qt::ActiveWindowFocusReason;
    const bool keeps_focus = with_window && !control_->LosesFocusWithWindow();
    if (!IsForMenu(*event) && !keeps_focus) owner_.OnFocusLost(*control_);
  }

 private:
  static bool IsForMenu(const QFocusEvent& event) {
    return event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason;
  }
  // Qt's text fields keep their selection for the time of a popup, but not for that of the
  // menu bar, whose commands act on it all the same.
  static QFocusEvent ForQt(const QFocusEvent& event) {
    return QFocusEvent(event.type(), IsForMenu(event) ? Qt::PopupFocusReason : event.reason());
  }

  ControlOwner& owner_;
  Control* control_ = nullptr;
};

}  // namespace fundlet
