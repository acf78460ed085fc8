// Settings in an INI file, one string a key, at the top of the file. A file edited by hand to hold other
// kinds of value gives the text of them. A new file is its user's alone to read.
#pragma once

#include <QSettings>

#include "platform/files.h"
#include "platform/preferences_store.h"

namespace brimle {

class QtPreferencesStore : public PreferencesStore {
 public:
  /// `files` must outlive the store.
  QtPreferencesStore(const Path& file, Files& files);

  bool isOpen() const override;
  std::optional<std::string> string(std::string_view key) const override;
  void setString(std::string_view key, std::string_view value) override;

 private:
  void makeFile();

  const Path file_;
  Files& files_;
  QSettings settings_;
};

}  // namespace brimle
