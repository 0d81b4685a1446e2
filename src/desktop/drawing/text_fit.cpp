#include "desktop/drawing/text_fit.h"

#include <algorithm>

#include <QFontMetricsF>

namespace fundlet {

namespace {

constexpr int kLeastStretch = 50;  // percent; narrower than that nothing can be read

}  // namespace

QFont NarrowedToFit(const QFont& font, const QString& text, int room) {
  const auto width = [&text](const QFont& tried) {
    return QFontMetricsF(tried).horizontalAdvance(text);
  };
  const qreal plain_width = width(font);
  if (plain_width <= room) return font;
  QFont narrowed = font;
  int stretch = static_cast<int>(QFont::Unstretched * room / plain_width);
  do {
    narrowed.setStretch(std::max(stretch, kLeastStretch));
  } while (width(narrowed) > room && --stretch >= kLeastStretch);
  return narrowed;
}

}  // namespace fundlet
