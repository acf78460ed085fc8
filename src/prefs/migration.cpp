#include "prefs/migration.h"

namespace brimle {
namespace {

constexpr std::string_view kDoneKey = "migratedFromQuorel";
constexpr std::string_view kMigratedKeys[] = {"fontDesign", "textSize", "language", "paperTone",
                                              "NSWindow Frame TodayWindow"};

}  // namespace

void migrateFromQuorel(PreferencesStore& standard, const PreferencesStore& predecessor) {
  if (standard.string(kDoneKey) == "true" || !predecessor.isOpen()) return;
  for (const std::string_view key : kMigratedKeys) {
    if (standard.string(key)) continue;
    if (const auto value = predecessor.string(key)) standard.setString(key, *value);
  }
  standard.setString(kDoneKey, "true");
}

}  // namespace brimle
