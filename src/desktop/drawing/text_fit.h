#pragma once

#include <QFont>
#include <QString>

namespace fundlet {

// The font, made narrower by as little as it takes for the text to be no wider than `room` pixels.
QFont NarrowedToFit(const QFont& font, const QString& text, int room);

}  // namespace fundlet
