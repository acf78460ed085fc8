#include "platform/desktop/qt_preferences_store.h"

#include <QStringList>

namespace brimle {
namespace {

QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QtPreferencesStore::QtPreferencesStore(const Path& file)
    : settings_(QString::fromStdString(file.string()), QSettings::IniFormat) {}

bool QtPreferencesStore::isOpen() const {
  return settings_.status() == QSettings::NoError;
}

std::optional<std::string> QtPreferencesStore::string(std::string_view key) const {
  const QVariant value = settings_.value(toQt(key));
  if (!value.isValid()) return std::nullopt;
  // An unquoted comma makes a list of what was meant as one text.
  return value.toStringList().join(QStringLiteral(", ")).toStdString();
}

void QtPreferencesStore::setString(std::string_view key, std::string_view value) {
  settings_.setValue(toQt(key), toQt(value));
}

}  // namespace brimle
