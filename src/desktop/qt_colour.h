#pragma once

#include <QPalette>
#include <QWidget>

#include "desktop/property_set.h"

namespace fundlet {

// Gives a widget a colour of its own for one role of its palette.
inline void SetColour(QWidget& widget, QPalette::ColorRole role, Colour colour) {
  QPalette palette = widget.palette();
  palette.setColor(role, QColor(colour.red, colour.green, colour.blue));
  widget.setPalette(palette);
}

}  // namespace fundlet
