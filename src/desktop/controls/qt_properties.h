#pragma once

#include <QPalette>
#include <QWidget>

#include "desktop/base/property_set.h"
#include "desktop/controls/alignment.h"

// Values of properties in Qt's terms.
namespace fundlet {

// The number as Qt's alignment, vertically centred; left for a number that is not among `numbers`.
inline Qt::Alignment AlignmentOf(std::int64_t number, const AlignmentNumbers& numbers) {
  if (number == numbers.centre) return Qt::AlignHCenter | Qt::AlignVCenter;
  return (number == numbers.right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

// Gives a widget a colour of its own for one role of its palette.
inline void SetColour(QWidget& widget, QPalette::ColorRole role, Colour colour) {
  QPalette palette = widget.palette();
  palette.setColor(role, QColor(colour.red, colour.green, colour.blue));
  widget.setPalette(palette);
}

}  // namespace fundlet
