// The menu bar: its language, its check marks, its keys, and who takes a command.
#include "app/app_fixture.h"

namespace brimle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using MenuTest = AppTest;

TEST_F(MenuTest, TicksEachSettingThatIsChosenInEveryLanguage) {
  const std::map<std::string_view, const char*> keys = {{"", "appearance"},
                                                        {"Paper", "paperTone"},
                                                        {"Font", "fontDesign"},
                                                        {"Text Size", "textSize"},
                                                        {"Margin", "margin"}};
  for (const auto& language : I18n::languages()) {
    preferences.values = {{"language", std::string(language.code)}};
    launch();
    for (const MenuRow& row : menuRows()) {
      if (row.value.empty() || row.submenu == "Language") continue;
      const std::string item(I18n::t(row.title));
      const std::string path = row.submenu.empty() ? item : I18n::t(row.submenu) + "/" + item;
      EXPECT_TRUE(menus.choose("3/" + path)) << path;
      EXPECT_THAT(ticked(), testing::Contains(path)) << language.code;
      EXPECT_EQ(ticked().size(), 6u) << language.code << " " << path;
      EXPECT_EQ(preferences.string(keys.at(row.submenu)), row.value) << path;
    }
  }
}

TEST_F(MenuTest, TicksWhatTheSettingsHold) {
  launch();
  EXPECT_THAT(ticked(), ElementsAre("Système", "Papier/Chaud", "Police/Système", "Taille du texte/Moyenne",
                                    "Marge/Standard", "Langue/Système"));
  preferences.values = {{"appearance", "sepia"}, {"paperTone", "White"}, {"fontDesign", ""},
                        {"textSize", "huge"},    {"margin", "none"},     {"language", "tlh"}};
  launch();
  EXPECT_THAT(ticked(), IsEmpty());
  preferences.setString("appearance", "dark");
  loginItem.now = LoginItem::Status::enabled;
  menus.open(2);
  EXPECT_THAT(ticked(), IsEmpty());
  menus.open(3);
  EXPECT_THAT(ticked(), ElementsAre("Start at Login", "Dark"));
  loginItem.now = LoginItem::Status::requiresApproval;
  menus.open(0);
  EXPECT_THAT(ticked(), ElementsAre("Dark"));
}

TEST_F(MenuTest, PutsInForceWhatIsChosen) {
  preferences.setString("language", "en");
  launch();
  const std::pair<std::string, Journal> cases[] = {{"Dark", {"dark appearance"}},
                                                   {"Light", {"light appearance"}},
                                                   {"System", {"appearance of the desktop"}},
                                                   {"Paper/White", {"fresh paper"}},
                                                   {"Margin/Flush", {}}};
  for (const auto& [path, asks] : cases) {
    asked();
    EXPECT_TRUE(menus.choose("3/" + path));
    time.runUntilIdle();
    EXPECT_EQ(asked(), asks) << path;
  }
  EXPECT_EQ(Palette::tone(), "plain");
}

TEST_F(MenuTest, ResetsToTheDefaults) {
  preferences.values = {{"appearance", "dark"}, {"paperTone", "plain"}, {"fontDesign", "serif"},
                        {"textSize", "large"},  {"margin", "flush"},    {"language", "en"}};
  launch("A");
  press("3");
  ui->setCompact(true);
  time.runUntilIdle();
  EXPECT_TRUE(menus.choose("3/Reset to Defaults"));
  time.runUntilIdle();
  const decltype(preferences.values) defaults = {{"appearance", "system"}, {"paperTone", "warm"},
                                                 {"fontDesign", "system"}, {"textSize", "medium"},
                                                 {"margin", "standard"},   {"language", "system"}};
  EXPECT_EQ(preferences.values, defaults);
  EXPECT_EQ(application.forcedDark, std::nullopt);
  EXPECT_EQ(window.at, (Rect{100, 50, 300, 400}));
  EXPECT_EQ(menus.bar.at(1).title, "Fichier");
  EXPECT_EQ(status.tooltip, "1 tâche");
  EXPECT_EQ(ticked().size(), 6u);
}

TEST_F(MenuTest, HasKeysForItsItems) {
  preferences.setString("language", "en");
  launch("A");
  const Modifiers command = Modifier::command, shift = command | Modifier::shift;
  const std::tuple<const char*, Modifiers, Journal> cases[] = {
      {"n", command, {"activated", "window in front", "focus"}},
      {"/", command | Modifier::capsLock, {"panel Shortcuts"}},
      {"/", shift, {"panel Shortcuts"}},
      {"m", command, {"window minimised"}},
      {"q", command, {"quit"}}};
  for (const auto& [key, held, asks] : cases) {
    asked();
    EXPECT_TRUE(press(key, held)) << key;
    EXPECT_EQ(asked(), asks) << key;
  }
  EXPECT_TRUE(press("c", shift));
  EXPECT_EQ(pasteboard.text, store->dayAsText());
  EXPECT_TRUE(press("v", shift));
  EXPECT_EQ(store->items().size(), 3u);
  EXPECT_TRUE(press("1"));
  EXPECT_EQ(window.at.width, 240);
  const std::pair<const char*, Modifiers> others[] = {
      {"n", {}},      {"n", shift}, {"q", command | Modifier::option}, {"q", command | Modifier::control},
      {"k", command}, {"", command}};
  for (const auto& [key, held] : others) EXPECT_FALSE(press(key, held)) << key;
}

TEST_F(MenuTest, LetsATextFieldTakeItsCommandsFirst) {
  const Modifiers shift = Modifier::command | Modifier::shift;
  const std::tuple<const char*, Modifiers, EditCommand> cases[] = {
      {"x", Modifier::command, EditCommand::cut},   {"c", Modifier::command, EditCommand::copy},
      {"v", Modifier::command, EditCommand::paste}, {"a", Modifier::command, EditCommand::selectAll},
      {"z", Modifier::command, EditCommand::undo},  {"z", shift, EditCommand::redo}};
  launch();
  store->addLines("A", false);
  asked();
  for (const auto& [key, held, command] : cases) {
    window.fieldTakes = {command};
    EXPECT_TRUE(press(key, held));
    EXPECT_EQ(asked(), Journal{"field edits"}) << key;
    EXPECT_EQ(store->items().size(), 1u) << key;
  }
  window.fieldTakes = {};
  for (const auto& [key, held, command] : cases) {
    EXPECT_TRUE(press(key, held));
    EXPECT_EQ(store->items().size(), command == EditCommand::undo ? 0u : 1u) << key;
  }
  EXPECT_THAT(asked(), IsEmpty());
}

}  // namespace
}  // namespace brimle
