// The menu bar: its language, its check marks, its keys, and who takes a command.
#include "app/app_fixture.h"

namespace brimle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using MenuTest = AppTest;

TEST_F(MenuTest, IsInTheLanguageThatIsChosen) {
  preferences.setString("language", "en");
  launch("A");
  EXPECT_TRUE(menus.choose("3/Language/Deutsch"));
  EXPECT_EQ(menus.installs, 2);
  std::string titles;
  for (const Menu& menu : menus.bar) titles += menu.title + "(" + menu.items.back().title + ") ";
  EXPECT_EQ(titles,
            "(Brimle beenden) Datei(Als Aufgaben einfügen) Bearbeiten(Alles auswählen) "
            "Ansicht(Auf Standard zurücksetzen) Fenster(Groß) Hilfe(Feedback senden) ");
  EXPECT_EQ(topMenu(menus.bar, "View"), nullptr);
  const Menu* view = topMenu(menus.bar, "Ansicht");
  ASSERT_TRUE(view);
  const auto& languages = view->items.at(view->items.size() - 3);
  EXPECT_EQ(languages.title, "Sprache");
  ASSERT_EQ(languages.items.size(), I18n::languages().size() + 1);
  for (std::size_t at = 0; at < I18n::languages().size(); ++at) {
    EXPECT_EQ(languages.items[at + 1].title, I18n::languages()[at].name);
  }
  EXPECT_THAT(ticked(languages.items), ElementsAre("Deutsch"));
  EXPECT_EQ(status.tooltip, "1 Aufgabe");
  EXPECT_EQ(preferences.string("language"), "de");
}

TEST_F(MenuTest, TicksEachSettingThatIsChosenInEveryLanguage) {
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

TEST_F(MenuTest, SkipsItemsOfAnotherLanguage) {
  MenuBar bar = buildMenu({});
  I18n::setLang("ja");
  for (const auto group : {MarkGroup::appearance, MarkGroup::style, MarkGroup::language, MarkGroup::login}) {
    refreshMarks(bar, group, [](const MenuRow&) { return true; });
    MenuBar none;
    refreshMarks(none, group, [](const MenuRow&) { return true; });
  }
  for (const Menu& menu : bar) EXPECT_THAT(ticked(menu.items), IsEmpty());
}

TEST_F(MenuTest, StoresWhatIsChosenAndPutsItInForce) {
  preferences.setString("language", "en");
  launch();
  const std::tuple<const char*, const char*, const char*, Journal> cases[] = {
      {"Dark", "appearance", "dark", {"dark appearance"}},
      {"Light", "appearance", "light", {"light appearance"}},
      {"System", "appearance", "system", {"appearance of the desktop"}},
      {"Paper/White", "paperTone", "plain", {"fresh paper"}},
      {"Font/Rounded", "fontDesign", "rounded", {}},
      {"Text Size/Large", "textSize", "large", {}},
      {"Margin/Flush", "margin", "flush", {}}};
  for (const auto& [path, key, value, asks] : cases) {
    asked();
    EXPECT_TRUE(menus.choose("3/" + std::string(path)));
    time.runUntilIdle();
    EXPECT_EQ(preferences.string(key), value);
    EXPECT_EQ(asked(), asks) << path;
  }
  EXPECT_EQ(Palette::tone(), "plain");
}

TEST_F(MenuTest, ResetsToTheDefaults) {
  preferences.values = {{"appearance", "dark"}, {"paperTone", "plain"}, {"fontDesign", "serif"},
                        {"textSize", "large"},  {"margin", "flush"},    {"language", "en"}};
  launch();
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
  EXPECT_EQ(ticked().size(), 6u);
}

TEST_F(MenuTest, HasKeysForItsItems) {
  preferences.setString("language", "en");
  launch("A");
  const Modifiers command = Modifier::command, shift = command | Modifier::shift;
  const std::tuple<const char*, Modifiers, Journal> cases[] = {
      {"n", command, {"activated", "window in front", "focus"}},
      {"n", command | Modifier::capsLock, {"activated", "window in front", "focus"}},
      {"/", command, {"panel Shortcuts"}},
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
  EXPECT_TRUE(press("z"));
  EXPECT_TRUE(press("1"));
  EXPECT_EQ(window.at.width, 240);
  for (const auto& [key, held] :
       std::initializer_list<std::pair<std::string, Modifiers>>{{"n", {}},
                                                                {"n", shift},
                                                                {"q", command | Modifier::option},
                                                                {"q", command | Modifier::control},
                                                                {"k", command},
                                                                {"", command},
                                                                {std::string(1, '\0'), command}}) {
    EXPECT_FALSE(press(key, held)) << key;
  }
}

TEST_F(MenuTest, LetsATextFieldTakeItsCommandsFirst) {
  const Modifiers shift = Modifier::command | Modifier::shift;
  const std::tuple<const char*, Modifiers, EditCommand> cases[] = {
      {"x", Modifier::command, EditCommand::cut},   {"c", Modifier::command, EditCommand::copy},
      {"v", Modifier::command, EditCommand::paste}, {"a", Modifier::command, EditCommand::selectAll},
      {"z", Modifier::command, EditCommand::undo},  {"z", shift, EditCommand::redo}};
  for (const auto& [key, held, command] : cases) {
    launch();
    store->addLines("A", false);
    if (command == EditCommand::redo) store->undo();
    const std::string before = shown(store->lists());
    asked();
    window.fieldTakes = {command};
    EXPECT_TRUE(press(key, held));
    EXPECT_EQ(asked(), Journal{"field edits"}) << key;
    EXPECT_EQ(shown(store->lists()), before) << key;
    window.fieldTakes = {};
    EXPECT_TRUE(press(key, held));
    const bool isUndo = command == EditCommand::undo || command == EditCommand::redo;
    EXPECT_EQ(shown(store->lists()) != before, isUndo) << key;
    EXPECT_THAT(asked(), IsEmpty()) << key;
  }
}

TEST_F(MenuTest, CopiesTheDayAndPastesTasks) {
  launch();
  pasteboard.text = "before";
  app->perform(Command::copyDay);
  EXPECT_EQ(pasteboard.text, "lundi 15 juin");
  for (const auto& [text, list] : std::initializer_list<std::pair<std::optional<std::string>, const char*>>{
           {std::nullopt, ""}, {"milk", "milk"}, {"eggs\nbread", "milk eggs bread"}}) {
    pasteboard.text = text;
    app->perform(Command::pasteTasks);
    std::string texts;
    for (const TodoItem& task : store->items()) texts += (texts.empty() ? "" : " ") + task.text;
    EXPECT_EQ(texts, list);
  }
}

}  // namespace
}  // namespace brimle
