#include "platform/desktop/qt_preferences_store.h"

#include <QStringList>

namespace brimle {
QtPreferencesStore::QtPreferencesStore(const Path& file, Files& files)
    : file_(file), files_(files), settings_(QString::fromStdString(file.string()), QSettings::IniFormat) {}

bool QtPreferencesStore::isOpen() const {
  return settings_.status() == QSettings::NoError;
}

std::optional<std::string> QtPreferencesStore::string(std::string_view key) const {
  const QVariant value = settings_.value(QString::fromUtf8(key));
  if (!value.isValid()) return std::nullopt;
  // An unquoted comma makes a list of what was meant as one text.
  return value.toStringList().join(QStringLiteral(", ")).toStdString();
}

/// A file that is there keeps its mode when QSettings writes it; one that QSettings makes is everybody's to
/// read.
void QtPreferencesStore::makeFile() {
  if (files_.createFolders(file_.parent_path())) files_.replace(file_, {});
}

void QtPreferencesStore::setString(std::string_view key, std::string_view value) {
  if (!files_.exists(file_)) makeFile();
  settings_.setValue(QString::fromUtf8(key), QString::fromUtf8(value));
}

}  // namespace brimle
