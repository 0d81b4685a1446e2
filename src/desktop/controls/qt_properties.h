#pragma once

#include <QPalette>
#include <QWidget>

#include "desktop/controls/control.h"

// Setters of rows for properties that a control's Qt widget has.
namespace fundlet {

// Calls this function of the widget.
template <auto Method>
inline constexpr auto kThroughWidget = [](PropertyTarget& control, const PropertyValue& value) {
  [&]<typename Widget, typename Value>(void (Widget::*method)(Value)) {
    (static_cast<Control&>(control).NativeAs<Widget>().*method)(std::get<Value>(value));
  }(Method);
};

// Gives the widget a colour of its own for one role of its palette.
template <QPalette::ColorRole kRole>
void SetColour(PropertyTarget& control, const PropertyValue& value) {
  QWidget& widget = *static_cast<Control&>(control).Native();
  const auto [red, green, blue] = std::get<Colour>(value);
  QPalette palette = widget.palette();
  palette.setColor(kRole, QColor(red, green, blue));
  widget.setPalette(palette);
}

// Places the widget's text, vertically centred; on the left for a number not among kNumbers.
template <typename Widget, AlignmentNumbers kNumbers>
void SetAlignment(PropertyTarget& control, const PropertyValue& value) {
  const auto number = std::get<std::int64_t>(value);
  Qt::Alignment side = number == kNumbers.right ? Qt::AlignRight : Qt::AlignLeft;
  if (number == kNumbers.centre) side = Qt::AlignHCenter;
  static_cast<Control&>(control).NativeAs<Widget>().setAlignment(side | Qt::AlignVCenter);
}

}  // namespace fundlet
