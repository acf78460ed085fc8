// The settings, what they put in force, and those that come over from the program's predecessor.
#include <gtest/gtest.h>

#include "i18n/i18n.h"
#include "model/notation.h"
#include "platform/simulated/simulated_preferences_store.h"
#include "prefs/migration.h"
#include "prefs/palette.h"
#include "prefs/ui_state.h"

namespace brimle {
namespace {

using Settings = decltype(SimulatedPreferencesStore::values);

/// Settings written "key=value;key=value".
Settings settings(std::string_view text) {
  Settings all;
  for (const auto& row : split(text, ';')) all[row.substr(0, row.find('='))] = row.substr(row.find('=') + 1);
  return all;
}

struct PrefsTest : testing::Test {
  ~PrefsTest() override {
    I18n::setLang("en");
    Palette::setTone("warm");
  }

  SimulatedPreferencesStore preferences;
};
using UIStateTest = PrefsTest;
using PaletteTest = PrefsTest;
using MigrationTest = PrefsTest;

TEST_F(UIStateTest, ReadsTheSettingsWithTheirDefaultsAndWritesNothing) {
  using Row = std::tuple<const char*, const char*, double, double, FontDesign>;
  for (const auto& [stored, read, inset, size, design] : std::initializer_list<Row>{
           {"", "system medium system=de warm standard", 16, 13, FontDesign::standard},
           {"fontDesign=serif;textSize=small;language=ja;paperTone=plain;margin=narrow",
            "serif small ja=ja plain narrow", 10, 12, FontDesign::serif},
           {"fontDesign=rounded;textSize=large;margin=flush", "rounded large system=de warm flush", 4, 15,
            FontDesign::rounded},
           {"fontDesign=mono;textSize=;language=tlh;paperTone=White;margin=Flush",
            "mono  tlh=tlh White Flush", 16, 13, FontDesign::standard}}) {
    preferences.values = settings(stored);
    const UIState ui(preferences, {"de-AT"});
    std::string shown;
    for (const auto& value :
         {ui.fontDesign(), ui.textSize(), ui.language() + "=" + I18n::lang(), Palette::tone(), ui.margin()}) {
      shown += (shown.empty() ? "" : " ") + value;
    }
    EXPECT_EQ(shown, read);
    EXPECT_EQ(std::tuple(ui.listInset(), ui.baseSize(), ui.design()), std::tuple(inset, size, design));
    EXPECT_EQ(preferences.values, settings(stored));
  }
}

TEST_F(UIStateTest, WritesEachSettingAndPutsItInForceBeforeItTells) {
  UIState ui(preferences, {"fr-CA"});
  std::string told;
  const auto watching = ui.observe([&] { told += I18n::lang() + "/" + Palette::tone() + " "; });
  ui.setFontDesign("serif");
  ui.setTextSize("large");
  ui.setMargin("flush");
  ui.setPaperTone("plain");
  ui.setLanguage("ko");
  ui.setLanguage("system");
  ui.setArchiveQuery("not stored");
  EXPECT_EQ(told, "fr/warm fr/warm fr/warm fr/plain ko/plain fr/plain fr/plain ");
  EXPECT_EQ(preferences.values,
            settings("fontDesign=serif;textSize=large;margin=flush;paperTone=plain;language=system"));
  EXPECT_EQ(ui.listInset() + ui.baseSize(), 19);
}

TEST_F(MigrationTest, TakesOverOnceWhatIsNotSetYet) {
  const std::string frame = "language=tlh;paperTone=plain;NSWindow Frame TodayWindow=10 20 300 400;";
  const std::string afterNone = frame + "fontDesign=serif;textSize=small;migratedFromQuorel=true";
  const std::string afterSome = frame + "textSize=large;fontDesign=;migratedFromQuorel=true";
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"", afterNone},
      {"textSize=large;fontDesign=", afterSome},
      {"migratedFromQuorel=true", "migratedFromQuorel=true"}};
  for (const auto& [before, after] : rows) {
    preferences.values = settings(before);
    SimulatedPreferencesStore predecessor;
    predecessor.values = settings(frame + "fontDesign=serif;textSize=small;margin=flush;appearance=dark");
    predecessor.open = false;
    migrateFromQuorel(preferences, predecessor);
    EXPECT_EQ(preferences.values, settings(before)) << "what cannot be opened is tried again";
    predecessor.open = true;
    migrateFromQuorel(preferences, predecessor);
    EXPECT_EQ(preferences.values, settings(after));
    predecessor.values["language"] = "nl";
    migrateFromQuorel(preferences, predecessor);
    EXPECT_EQ(preferences.values, settings(after)) << "a second launch copies nothing";
  }
}

TEST_F(PaletteTest, HasPaperInTheToneInForce) {
  const Color warm = Palette::paper(Appearance::light), dark = Palette::paper(Appearance::dark);
  for (const char* tone : {"", "Plain"}) {
    Palette::setTone(tone);
    EXPECT_EQ(Palette::paper(Appearance::light), warm) << tone;
  }
  Palette::setTone("plain");
  EXPECT_EQ(Palette::paper(Appearance::light), (Color{0.99, 0.99, 0.99, 1}));
  EXPECT_NE(Palette::paper(Appearance::dark), dark);
}

}  // namespace
}  // namespace brimle
