// The settings file: what it keeps, what is read of a damaged one, and who may read it.
#include "platform/desktop/qt_preferences_store.h"

#include <gmock/gmock.h>

#include <fstream>

#include "platform/desktop/posix_files.h"
#include "platform/temp_folder.h"

namespace brimle {
namespace {

using std::filesystem::perms;
using testing::Optional;

class SettingsFile : public testing::Test {
 protected:
  perms modeOf(const Path& one) const { return std::filesystem::status(one).permissions(); }

  TempFolder folder;
  PosixFiles files;
  const Path path = folder.path / "config" / "brimle" / "settings.ini";
};

TEST_F(SettingsFile, IsReadAgainAsItWasWritten) {
  const std::pair<std::string, std::string> kSettings[] = {
      {"language", "zh-Hant"},
      {"NSWindow Frame TodayWindow", "10 20 300 400 0 0 1280 800 "},
      {"odd/key", "a, b; \"c\" \\ = %1\n\t[d]"},
      {"日本", "日本語 \U0001F4C5"},
      {"empty", ""},
  };
  EXPECT_EQ(QtPreferencesStore(path, files).string("language"), std::nullopt);
  EXPECT_TRUE(QtPreferencesStore(path, files).isOpen());
  EXPECT_FALSE(files.exists(path)) << "made by reading";
  {
    QtPreferencesStore store(path, files);
    for (const auto& [key, value] : kSettings) store.setString(key, value);
  }
  const QtPreferencesStore store(path, files);
  for (const auto& [key, value] : kSettings) EXPECT_THAT(store.string(key), Optional(value)) << key;
}

TEST_F(SettingsFile, IsItsUsersAloneUnlessItWasMadeForMore) {
  QtPreferencesStore(path, files).setString("language", "de");
  EXPECT_EQ(modeOf(path), perms(0600));
  EXPECT_EQ(modeOf(path.parent_path()), perms(0700));

  std::filesystem::permissions(path, perms(0640));
  QtPreferencesStore(path, files).setString("language", "fr");
  EXPECT_EQ(modeOf(path), perms(0640));
  EXPECT_THAT(QtPreferencesStore(path, files).string("language"), Optional(std::string("fr")));
}

TEST_F(SettingsFile, ThatAHandHasEditedGivesWhatCanBeRead) {
  files.createFolders(path.parent_path());
  std::ofstream(path) << "]broken\nlanguage\n=nothing\nmargin=narrow, flush \n\xff\xfe=\xff\n";
  QtPreferencesStore store(path, files);
  EXPECT_THAT(store.string("margin"), Optional(std::string("narrow, flush")));
  store.setString("language", "it");
  EXPECT_THAT(store.string("language"), Optional(std::string("it")));
}

}  // namespace
}  // namespace brimle
