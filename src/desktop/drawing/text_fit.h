#pragma once

#include <QFont>
#include <QString>

namespace fundlet {

// The font, condensed just enough for the text to fit into `width` pixels, but to no less than half
// its normal width; a still wider text overflows.
QFont NarrowedToFit(const QFont& font, const QString& text, int width);

}  // namespace fundlet
