#include "desktop/drawing/text_fit.h"

#include <algorithm>

#include <QFontMetricsF>

namespace fundlet {

namespace {

constexpr int kLeastStretch = 50;  // percent; narrower text cannot be read

}  // namespace

QFont NarrowedToFit(const QFont& font, const QString& text, int width) {
  const auto width_in = [&text](const QFont& tried) {
    return QFontMetricsF(tried).horizontalAdvance(text);
  };
  const qreal plain_width = width_in(font);
  if (plain_width <= width) return font;
  QFont narrowed = font;
  int stretch = static_cast<int>(QFont::Unstretched * width / plain_width);
  do {
    narrowed.setStretch(std::max(stretch, kLeastStretch));
  } while (width_in(narrowed) > width && --stretch >= kLeastStretch);
  return narrowed;
}

}  // namespace fundlet
