#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <QList>
#include <QString>

namespace fundlet {

inline QString ToQt(std::string_view text) { return QString::fromUtf8(text); }
inline std::string FromQt(const QString& text) { return text.toStdString(); }

// Qt counts UTF-16 units, the program characters; a character above U+FFFF has two units.
inline int UnitsOf(const QString& text, std::int64_t characters) {
  int units = 0;
  for (; characters > 0 && units < text.size(); --characters) {
    units += text.at(units).isHighSurrogate() && units + 1 < text.size() ? 2 : 1;
  }
  return units;
}
inline std::int64_t CharactersOf(const QString& text, int units) {
  return text.left(units).toUcs4().size();
}

}  // namespace fundlet
