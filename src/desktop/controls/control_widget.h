#pragma once

#include <QFocusEvent>
#include <QPalette>
#include <QWidget>

#include "desktop/base/run_state.h"
#include "desktop/controls/control.h"

// What the Qt widgets of several classes of controls have in common.
namespace fundlet {

// The setter of a row that calls this function of the control's widget.
template <auto Method>
inline constexpr auto kThroughWidget = [](PropertyTarget& control, const PropertyValue& value) {
  [&]<typename Widget, typename Value>(void (Widget::*method)(Value)) {
    (static_cast<Control&>(control).NativeAs<Widget>().*method)(std::get<Value>(value));
  }(Method);
};

// The setter of a row that gives the widget a colour of its own for one role of its palette.
template <QPalette::ColorRole kRole>
void SetColour(PropertyTarget& control, const PropertyValue& value) {
  QWidget& widget = *static_cast<Control&>(control).Native();
  const auto [red, green, blue] = std::get<Colour>(value);
  QPalette palette = widget.palette();
  palette.setColor(kRole, QColor(red, green, blue));
  widget.setPalette(palette);
}

// The setter of a row that places the widget's text, vertically centred; on the left for a number
// that is not among kNumbers.
template <typename Widget, AlignmentNumbers kNumbers>
void SetAlignment(PropertyTarget& control, const PropertyValue& value) {
  const auto number = std::get<std::int64_t>(value);
  Qt::Alignment side = number == kNumbers.right ? Qt::AlignRight : Qt::AlignLeft;
  if (number == kNumbers.centre) side = Qt::AlignHCenter;
  static_cast<Control&>(control).NativeAs<Widget>().setAlignment(side | Qt::AlignVCenter);
}

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
