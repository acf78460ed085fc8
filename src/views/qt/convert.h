// Between the program's own values and Qt's.
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <string>
#include <string_view>
#include <vector>

#include "base/uuid.h"
#include "prefs/palette.h"
#include "views/row_text.h"

namespace brimle {

inline QString toQt(std::string_view text) {
  return QString::fromUtf8(text);
}
inline std::string fromQt(const QString& text) {
  return text.toStdString();
}
inline QString toQt(const Uuid& id) {
  return toQt(id.string());
}
/// Calls `action` with the id that the text is, if it is one.
template <class Action>
void withId(const QString& text, Action action) {
  if (const auto id = Uuid::parse(fromQt(text))) action(*id);
}
/// Notes as a row shows them.
inline QStringList shownNotes(const std::vector<std::string>& notes) {
  QStringList shown;
  for (const std::string& note : notes) shown.append(toQt(shownText(note)));
  return shown;
}
inline QColor toQt(const Color& color) {
  return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                          static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

}  // namespace brimle
