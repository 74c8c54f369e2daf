#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace awizo::desktop {

inline QString fromText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string toText(const QString& text) { return text.toStdString(); }

/// How many of the text's units a character needs beyond one: the models count characters, Qt
/// counts units of 16 bits.
inline int surplusUnits(const QString& text) {
  int surplus = 0;
  for (const QChar unit : text) surplus += unit.isLowSurrogate() ? 1 : 0;
  return surplus;
}

/// The place, in Qt's units, that lies `characters` characters after the start.
inline int unitsBefore(const QString& text, int characters) {
  int units = 0;
  for (; characters > 0 && units < text.size(); --characters) {
    units += text.at(units).isHighSurrogate() && units + 1 < text.size() ? 2 : 1;
  }
  return units;
}

}  // namespace awizo::desktop
