#pragma once

#include <QProxyStyle>

namespace fundlet {

// The style of the program where the desktop has none of its own. The toolkit keeps what it has
// drawn under names in which the identity of the palette has a part, every window has a palette of
// another identity, and the names are kept for ever. Here equal palettes are one, so that a window
// opened again and again takes no more memory.
class ProgramStyle : public QProxyStyle {
 public:
  ProgramStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
};

}  // namespace fundlet
