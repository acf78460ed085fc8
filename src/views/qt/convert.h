// Between the program's own values and Qt's.
#pragma once

#include <QColor>
#include <QString>
#include <string>
#include <string_view>

#include "base/uuid.h"
#include "prefs/palette.h"

namespace brimle {

inline QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) {
  return text.toStdString();
}
inline QString toQt(const Uuid& id) {
  return toQt(id.string());
}
inline QColor toQt(const Color& color) {
  return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                          static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

}  // namespace brimle
