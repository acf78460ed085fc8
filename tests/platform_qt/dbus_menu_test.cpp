// A menu of the program's on the bus, as desktops read it and choose from it.
#include "platform/desktop/qt_dbus_menu.h"

#include <gmock/gmock.h>

#include "platform_qt/menu_client.h"
#include "platform_qt/patience.h"

namespace brimle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class MenuOnTheBus : public testing::Test {
 protected:
  MenuEntry item(const std::string& title, char key = 0) {
    return {.title = title, .action = [this, title] { journal.push_back(title); }, .key = key};
  }
  static MenuEntry marked(MenuEntry entry, bool on) {
    entry.on = on;
    return entry;
  }
  static QVariant ids(const QList<int>& list) { return QVariant::fromValue(list); }
  static QVariantList event(int id, const char* kind) {
    return {id, kind, QVariant::fromValue(QDBusVariant(0)), 0u};
  }
  static QVariant events(const std::vector<std::pair<int, const char*>>& idsAndKinds) {
    QList<DBusMenuEvent> list;
    for (const auto& [id, kind] : idsAndKinds) list.append({id, kind, QDBusVariant(0), 0});
    return QVariant::fromValue(list);
  }

  std::vector<std::string> journal;
  std::vector<MenuEntry> entries{
      item("New", 'n'),
      {},
      {.title = "View", .items = {marked(item("Light"), true), marked(item("Dark"), false)}},
      {.title = "1 task"}};
  Neighbour stranger;
  MenuClient client{stranger, "/menu"};
  QtDBusMenu menu{"/menu", [this] { return entries; }};
};

TEST_F(MenuOnTheBus, IsReadWithAllItHas) {
  entries = {item("New Task", 'n'),
             item("Copy", 'C'),
             item("Shortcuts", '/'),
             {},
             {.title = "View",
              .items = {marked(item("Light"), true),
                        marked(item("Dark"), false),
                        {.title = "Deeper", .items = {item("a_b & c")}}}},
             {.title = "1 task"},
             {.title = "Delete", .action = [] {}, .destructive = true}};
  EXPECT_THAT(client.rows(), ElementsAre("New Task [Control+N]", "Copy [Control+Shift+C]",
                                         "Shortcuts [Control+/]", "-", "View:", "  x Light", "  o Dark",
                                         "  Deeper:", "    a__b & c", "(1 task)", "! Delete"));
}

TEST_F(MenuOnTheBus, IsReadInParts) {
  client.rows();
  const int view = client.id(2);
  const struct {
    int parent, depth;
    QStringList names;
    qsizetype properties, rows, deeperRows;  ///< of the parent, below it and below its last but one
  } kCases[] = {{0, -1, {}, 1, 4, 2},        {0, -7, {}, 1, 4, 2},    {0, 1, {}, 1, 4, 0},
                {0, 0, {}, 1, 0, 0},         {view, -1, {}, 3, 2, 0}, {view, 1, {"label"}, 1, 2, 0},
                {view, 1, {"none"}, 0, 2, 0}};
  for (const auto& [parent, depth, names, properties, rows, deeperRows] : kCases) {
    const QVariantList layout = client.ask("GetLayout", {parent, depth, names}).value(1).toList();
    const QVariantList below = layout.value(2).toList();
    EXPECT_EQ(layout.value(0), parent);
    EXPECT_THAT(layout.value(1).toMap(), SizeIs(properties)) << parent << ' ' << depth;
    EXPECT_THAT(below, SizeIs(rows)) << parent << ' ' << depth;
    EXPECT_THAT(below.value(rows - 2).toList().value(2).toList(), SizeIs(deeperRows)) << depth;
  }
  const auto group = [&](const QList<int>& numbers, const QStringList& names) {
    return client.ask("GetGroupProperties", {ids(numbers), names}).value(0).toList();
  };
  EXPECT_THAT(group({}, {}), SizeIs(7));
  EXPECT_THAT(group({view, view, 99, -1}, {}), SizeIs(1));
  EXPECT_EQ(group({view}, {"label"}), (QVariantList{QVariantList{view, QVariantMap{{"label", "View"}}}}));
  EXPECT_EQ(client.ask("GetProperty", {view, "label"}), QVariantList{"View"});
}

TEST_F(MenuOnTheBus, IsAskedForAnewWhenItOpensAndTellsWhatChanged) {
  client.rows();
  EXPECT_FALSE(client.open());
  const int before = client.id(3);
  entries[3].title = "2 tasks";
  entries[2].items[0].on = false;
  EXPECT_TRUE(client.open(client.id(2)));
  EXPECT_FALSE(client.open());
  EXPECT_THAT(client.newRows(), ElementsAre("o Light", "(2 tasks)"));
  client.rows();
  EXPECT_EQ(client.id(3), before);
  EXPECT_EQ(client.newLayouts(), 1) << "of the first reading";

  entries.erase(entries.begin());
  EXPECT_EQ(client.ask("AboutToShowGroup", {ids({0, 77})}),
            (QVariantList{QVariantList{0}, QVariantList{77}}));
  EXPECT_EQ(client.newLayouts(), 2);
  EXPECT_TRUE(client.isRefused("Event", event(before, "clicked"))) << "it could be another row now";
  EXPECT_THAT(client.rows(), ElementsAre("-", "View:", "  o Light", "  o Dark", "(2 tasks)"));
  EXPECT_EQ(client.newLayouts(), 2);

  entries[2].title = "3 tasks";
  menu.setEntries(entries);
  client.open();
  EXPECT_THAT(client.newRows(), ElementsAre("o Light", "(2 tasks)", "(3 tasks)"));
}

TEST_F(MenuOnTheBus, DoesWhatIsChosenOnceItHasAnswered) {
  entries[0].action = [&] {
    waitFor([&] { return stranger.hasAnswer(); });
    journal.emplace_back("New");
  };
  client.rows();
  client.click(client.id(0));
  client.click(client.id(4));
  client.ask("EventGroup", {events({{client.id(3), "clicked"}, {99, "clicked"}, {client.id(4), "hovered"}})});
  EXPECT_THAT(journal, ElementsAre("New", "Dark", "Light"));
}

TEST_F(MenuOnTheBus, IsUnmovedByWhatMakesNoSense) {
  client.rows();
  const int first = client.id(0);
  const std::pair<const char*, QVariantList> kRefused[] = {
      {"GetLayout", {}},
      {"GetLayout", {99, -1, QStringList()}},
      {"GetLayout", {-1, -1, QStringList()}},
      {"GetLayout", {"0", -1, QStringList()}},
      {"GetGroupProperties", {QStringList{"0"}, QStringList()}},
      {"GetProperty", {first, "none"}},
      {"GetProperty", {99, "label"}},
      {"Event", {first, "clicked"}},
      {"Event", event(99, "clicked")},
      {"EventGroup", {events({{99, "clicked"}, {98, "clicked"}})}},
      {"EventGroup", {ids({99, -1})}},
      {"AboutToShow", {99}},
      {"AboutToShow", {true}},
      {"AboutToShowGroup", {ids({99, -1})}},
      {"setEntries", {}},
      {"deleteLater", {}}};
  for (const auto& [method, arguments] : kRefused)
    EXPECT_TRUE(client.isRefused(method, arguments)) << method << ' ' << arguments.size();

  for (const std::size_t row : {1, 2, 5}) client.click(client.id(row));  // separator, submenu, disabled
  client.click(0);
  client.ask("Event", event(first, "opened"));
  client.ask("Event", event(first, ""));
  EXPECT_THAT(journal, IsEmpty());
  client.click(first);
  EXPECT_THAT(journal, ElementsAre("New"));
}

}  // namespace
}  // namespace brimle
