#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace fundlet {

// The colours on a background of the program's own. They go with that background and not with the
// theme of the desktop, so that every text can be read under any theme.
QPalette PaletteFor(const QColor& background);

// The style of the program on Linux, in place of the desktop environment's.
class ProgramStyle : public QProxyStyle {
 public:
  ProgramStyle();

  // Menus and dialogs have the program's colours too: not every theme's can be read well.
  void polish(QPalette& palette) override;
  using QProxyStyle::polish;

  // QPixmapCache keeps what was drawn under names in which QPalette::cacheKey() has a
  // part, every window has a palette of another identity, and the names are kept for ever. Here
  // equal palettes are one, so that a window opened again and again takes no more memory.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;

  // The keys reach dimmed items of a menu too, so that a screen reader tells of them. A frame shows
  // where they are.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;

  // Qt's picture for a menu bar without room is a file, and reading any such file loads
  // its plug-ins for pictures, which the opening would wait for.
  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                     const QWidget* widget) const override;
};

}  // namespace fundlet
