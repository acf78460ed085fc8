// A menu of the program's on the bus, as desktops read it and choose from it.
#include "platform/desktop/qt_dbus_menu.h"

#include <gmock/gmock.h>

#include "platform_qt/neighbour.h"
#include "platform_qt/patience.h"

namespace brimle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::string rowText(const QVariantMap& properties) {
  if (properties["type"] == "separator") return "-";
  std::string text = properties["label"].toString().toStdString();
  for (const QVariant& stroke : properties["shortcut"].toList())
    text += " [" + stroke.toStringList().join('+').toStdString() + "]";
  if (properties["toggle-type"] == "checkmark") text = (properties["toggle-state"] == 1 ? "x " : "o ") + text;
  if (properties["disposition"] == "warning") text = "! " + text;
  return properties.value("enabled", true).toBool() ? text : "(" + text + ")";
}

/// A menu of com.canonical.dbusmenu, and a desktop that shows it: reads its rows, opens it, clicks.
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

  QVariantList ask(const QString& method, const QVariantList& arguments) {
    return desktop.ask("/menu", "com.canonical.dbusmenu", method, arguments);
  }
  bool isRefused(const QString& method, const QVariantList& arguments) {
    return desktop.isRefused("/menu", "com.canonical.dbusmenu", method, arguments);
  }
  /// A line a row, those of submenus deeper: "-", a disabled row in brackets, a mark as "x " or "o " before
  /// its row, and the keys behind it.
  std::vector<std::string> rows() {
    shown.clear();
    rowIds.clear();
    for (const QVariant& child : ask("GetLayout", {0, -1, QStringList()}).value(1).toList().value(2).toList())
      addRow(child.toList(), "");
    return shown;
  }
  void addRow(const QVariantList& layout, const std::string& indent) {
    const QVariantMap properties = layout[1].toMap();
    rowIds.push_back(layout[0].toInt());
    shown.push_back(indent + rowText(properties));
    if (properties["children-display"] == "submenu") shown.back() += ':';
    for (const QVariant& child : layout[2].toList()) addRow(child.toList(), indent + "  ");
  }
  /// The number of a row of those that were asked for last.
  int id(std::size_t row) const { return rowIds.at(row); }
  /// Whether the menu says that it must be read again.
  bool open(int row = 0) { return ask("AboutToShow", {row}).value(0).toBool(); }
  void click(int row) { ask("Event", event(row, "clicked")); }

  /// How often the menu said that it has other rows.
  auto newLayouts() const {
    return std::ranges::count(desktop.heard, "LayoutUpdated", &QDBusMessage::member);
  }
  /// The rows that the menu said have changed.
  std::vector<std::string> newRows() const {
    std::vector<std::string> rows;
    for (const QDBusMessage& signal : desktop.heard) {
      if (signal.member() != "ItemsPropertiesUpdated") continue;
      for (const QVariant& row : plainArguments(signal).value(0).toList())
        rows.push_back(rowText(row.toList().value(1).toMap()));
    }
    return rows;
  }

  Neighbour desktop;
  std::vector<std::string> shown;
  std::vector<int> rowIds;
  std::vector<std::string> journal;
  std::vector<MenuEntry> entries{
      item("New", 'n'),
      {},
      {.title = "View", .items = {marked(item("Light"), true), marked(item("Dark"), false)}},
      {.title = "1 task"}};
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
  EXPECT_THAT(rows(), ElementsAre("New Task [Control+N]", "Copy [Control+Shift+C]", "Shortcuts [Control+/]",
                                  "-", "View:", "  x Light", "  o Dark", "  Deeper:", "    a__b & c",
                                  "(1 task)", "! Delete"));
}

TEST_F(MenuOnTheBus, IsReadInParts) {
  rows();
  const int view = id(2);
  const struct {
    int parent, depth;
    QStringList names;
    qsizetype properties, rows, deeperRows;  ///< of the parent, below it and below its last but one
  } kCases[] = {{0, -1, {}, 1, 4, 2},
                {0, 1, {}, 1, 4, 0},
                {0, 0, {}, 1, 0, 0},
                {view, -1, {}, 3, 2, 0},
                {view, 1, {"label"}, 1, 2, 0}};
  for (const auto& [parent, depth, names, properties, rows, deeperRows] : kCases) {
    SCOPED_TRACE(depth);
    const QVariantList layout = ask("GetLayout", {parent, depth, names}).value(1).toList();
    const QVariantList below = layout.value(2).toList();
    EXPECT_EQ(layout.value(0), parent);
    EXPECT_THAT(layout.value(1).toMap(), SizeIs(properties));
    EXPECT_THAT(below, SizeIs(rows));
    EXPECT_THAT(below.value(rows - 2).toList().value(2).toList(), SizeIs(deeperRows));
  }
  const auto group = [&](const QList<int>& some) {
    return ask("GetGroupProperties", {ids(some), QStringList("label")}).value(0).toList();
  };
  EXPECT_THAT(group({}), SizeIs(7));
  EXPECT_EQ(group({view, view, 99, -1}), (QVariantList{QVariantList{view, QVariantMap{{"label", "View"}}}}));
  EXPECT_EQ(ask("GetProperty", {view, "label"}), QVariantList{"View"});
}

TEST_F(MenuOnTheBus, IsAskedForAnewWhenItOpensAndTellsWhatChanged) {
  rows();
  EXPECT_FALSE(open());
  const int before = id(3);
  entries[3].title = "2 tasks";
  entries[2].items[0].on = false;
  EXPECT_TRUE(open(id(2)));
  EXPECT_FALSE(open());
  EXPECT_THAT(newRows(), ElementsAre("o Light", "(2 tasks)"));
  rows();
  EXPECT_EQ(id(3), before);
  EXPECT_EQ(newLayouts(), 1) << "of the first reading";

  entries.erase(entries.begin());
  EXPECT_EQ(ask("AboutToShowGroup", {ids({0, 77})}), (QVariantList{QVariantList{0}, QVariantList{77}}));
  EXPECT_EQ(newLayouts(), 2);
  EXPECT_TRUE(isRefused("Event", event(before, "clicked"))) << "it could be another row now";
  EXPECT_THAT(rows(), ElementsAre("-", "View:", "  o Light", "  o Dark", "(2 tasks)"));
  EXPECT_EQ(newLayouts(), 2);

  entries[2].title = "3 tasks";
  menu.setEntries(entries);
  open();
  EXPECT_THAT(newRows(), ElementsAre("o Light", "(2 tasks)", "(3 tasks)"));
}

TEST_F(MenuOnTheBus, DoesWhatIsChosenOnceItHasAnswered) {
  entries[0].action = [&] {
    waitFor([&] { return desktop.hasAnswer(); });
    journal.emplace_back("New");
  };
  rows();
  click(id(0));
  click(id(4));
  ask("EventGroup", {events({{id(3), "clicked"}, {99, "clicked"}, {id(4), "hovered"}})});
  EXPECT_THAT(journal, ElementsAre("New", "Dark", "Light"));
}

TEST_F(MenuOnTheBus, IsUnmovedByWhatMakesNoSense) {
  rows();
  const int first = id(0);
  const std::pair<const char*, QVariantList> kRefused[] = {
      {"GetLayout", {}},
      {"GetLayout", {99, -1, QStringList()}},
      {"GetLayout", {"0", -1, QStringList()}},
      {"GetGroupProperties", {QStringList{"0"}, QStringList()}},
      {"GetProperty", {first, "none"}},
      {"GetProperty", {99, "label"}},
      {"Event", {first, "clicked"}},
      {"Event", event(99, "clicked")},
      {"EventGroup", {events({{99, "clicked"}, {98, "clicked"}})}},
      {"AboutToShow", {99}},
      {"AboutToShowGroup", {ids({99, -1})}},
      {"deleteLater", {}}};
  for (const auto& [method, arguments] : kRefused)
    EXPECT_TRUE(isRefused(method, arguments)) << method << ' ' << arguments.size();

  for (const std::size_t row : {1, 2, 5}) click(id(row));  // separator, submenu, disabled
  click(0);
  ask("Event", event(first, "opened"));
  EXPECT_THAT(journal, IsEmpty());
  click(first);
  EXPECT_THAT(journal, ElementsAre("New"));
}

}  // namespace
}  // namespace brimle
