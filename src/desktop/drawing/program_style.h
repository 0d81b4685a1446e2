#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace fundlet {

// The colours for controls on a light background. They are chosen for it and not taken from the
// desktop environment's theme, so that every text can be read under any theme.
QPalette PaletteFor(const QColor& background);

// The style of the program on every system but the Mac, whatever the desktop environment's is.
class ProgramStyle : public QProxyStyle {
 public:
  ProgramStyle();

  // Gives menus and dialogs the program's colours too, because some themes are hard to read.
  void polish(QPalette& palette) override;
  using QProxyStyle::polish;

  // QPixmapCache keys contain QPalette::cacheKey(), which differs for each window even if the
  // palettes are equal, and the cache keeps its entries. Drawing with one shared copy of equal
  // palettes keeps the memory constant however often a window is opened.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;

  // Lets the arrow keys select disabled menu items too, so that a screen reader can name them, and
  // draws a frame around a selected one. Draws the arrow of a menu bar that is too narrow: Qt's own
  // is an image file, and reading one would load the image plug-ins and delay the start.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                     const QWidget* widget) const override;
};

}  // namespace fundlet
