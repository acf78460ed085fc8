#include "platform/desktop/qt_status_item.h"

#include <gmock/gmock.h>

#include "platform/desktop/qt_status_icon.h"
#include "platform_qt/panel.h"

namespace brimle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr QRgb kDarkInk = qRgb(0x2b, 0x2b, 0x2b);
constexpr QRgb kLightInk = qRgb(0xf2, 0xf2, 0xf2);

class StatusItemTest : public testing::Test {
 protected:
  void install(QtStatusItem& one) {
    one.install({.click = [this](const std::string& token) { journal.push_back("click " + token); },
                 .menu = [this] { return menu(); }});
  }
  /// On a panel that is there.
  void show() {
    panel.start();
    install(item);
    panel.awaitRegistrations(1);
  }

  std::vector<MenuEntry> menu() {
    const auto writing = [this](const char* what) { return [this, what] { journal.emplace_back(what); }; };
    std::vector<MenuEntry> rows{{.title = first},
                                {},
                                {.title = "New Task", .action = writing("new")},
                                {.title = "This & th_at", .action = writing("that"), .on = true}};
    if (longer) rows.push_back({.title = "Quit Brimle", .action = writing("quit")});
    return rows;
  }

  static QImage picture(int side, long long count) {
    return statusPicture(side, count, kDarkInk).convertToFormat(QImage::Format_ARGB32);
  }
  QRgb inkShown() { return panel.icon(32).pixel(16, 0) | 0xff000000; }  // at the top of the ring

  Panel panel;
  QtSettingsPortal settings;
  QtStatusItem::PopUp popUp = [this](const std::vector<MenuEntry>& items, QPoint place) {
    poppedUp = items;
    poppedUpAt = place;
  };
  QtStatusItem item{settings, false, popUp};
  std::vector<MenuEntry> poppedUp;
  QPoint poppedUpAt;
  std::string first = "1 task";
  bool longer = false;
  std::vector<std::string> journal;
};

TEST_F(StatusItemTest, AppearsOnceAPanelIsThereAndOnEachThatFollows) {
  install(item);
  item.setTitle(" 3", "3 tasks");
  panel.settle();
  panel.start(false);
  panel.settle();
  EXPECT_EQ(panel.registrations, 0);
  panel.gainHost();
  panel.awaitRegistrations(1);
  EXPECT_EQ(panel.tooltip(), "3 tasks");
  EXPECT_EQ(panel.icon(22), picture(22, 3));

  panel.gainHost();
  panel.settle();
  EXPECT_EQ(panel.registrations, 1) << "it was taken already";

  panel.stop();
  item.setTitle(" 4", "4 tasks");
  panel.start();
  panel.awaitRegistrations(2);
  EXPECT_EQ(panel.tooltip(), "4 tasks");
}

TEST_F(StatusItemTest, AppearsOnAPanelThatComesLater) {
  install(item);
  panel.settle();
  panel.start();
  panel.awaitRegistrations(1);
}

TEST_F(StatusItemTest, ShowsTheCountInItsIconAndTellsItInWords) {
  show();
  const struct {
    const char *title, *tooltip;
    long long count;
  } kCases[] = {{" 1", "1 task", 1},
                {" 12", "12 tasks", 12},
                {" 250", "250 tasks", 250},
                {"", "all done", 0},
                {" 7", "7 Aufgaben", 7},
                {"no number", "", 0},
                {" 99999999999999999999", "too many", 0}};
  for (const auto& [title, tooltip, count] : kCases) {
    item.setTitle(title, tooltip);
    EXPECT_EQ(panel.tooltip(), tooltip);
    for (const int side : {16, 22, 24, 32, 48, 64})
      EXPECT_EQ(panel.icon(side), picture(side, count)) << title << side;
  }
}

TEST_F(StatusItemTest, SendsItsIconOnlyWhenItChanges) {
  show();
  item.setTitle(" 5", "5 tasks");
  panel.tooltip();
  const int icons = panel.newIcons, toolTips = panel.newToolTips;
  item.setTitle(" 5", "5 Aufgaben");
  EXPECT_EQ(panel.tooltip(), "5 Aufgaben");
  EXPECT_EQ(panel.newIcons, icons);
  EXPECT_EQ(panel.newToolTips, toolTips + 1);
  item.setTitle(" 6", "5 Aufgaben");
  panel.tooltip();
  EXPECT_EQ(panel.newIcons, icons + 1);
  EXPECT_EQ(panel.newToolTips, toolTips + 1);
}

TEST_F(StatusItemTest, TakesTheColourOfThePanel) {
  show();
  EXPECT_EQ(inkShown(), kDarkInk);
  const QRgb expected[] = {kDarkInk, kLightInk, kDarkInk};
  for (const uint colorScheme : {1u, 2u, 0u}) {
    panel.prefer(colorScheme);
    EXPECT_EQ(inkShown(), expected[colorScheme]) << colorScheme;
  }
}

TEST_F(StatusItemTest, IsLightOnAPanelThatIsAlwaysDark) {
  panel.start();
  const struct {
    const char* desktop;
    bool looksDark;
    QRgb ink;
  } kCases[] = {{"GNOME", false, kLightInk},
                {"ubuntu:GNOME", false, kLightInk},
                {"GNOME-Classic:GNOME", false, kDarkInk},
                {"KDE", false, kDarkInk},
                {"KDE", true, kLightInk},
                {"XFCE", false, kLightInk},
                {"", true, kLightInk}};
  for (const auto& [desktop, looksDark, ink] : kCases) {
    qputenv("XDG_CURRENT_DESKTOP", desktop);
    QtStatusItem one(settings, looksDark, popUp);
    install(one);
    panel.awaitRegistrations(panel.registrations + 1);
    EXPECT_EQ(inkShown(), ink) << desktop;
  }
  qunsetenv("XDG_CURRENT_DESKTOP");
}

TEST_F(StatusItemTest, IsClickedWithTheTokenOfThatClick) {
  show();
  panel.call("ProvideXdgActivationToken", {"token 1"});
  panel.call("Activate", {0, 0});
  panel.call("Activate", {0, 0});
  EXPECT_THAT(journal, ElementsAre("click token 1", "click "));
}

TEST_F(StatusItemTest, AsksForItsMenuEachTimeItOpens) {
  show();
  MenuClient& menu = panel.menu();
  EXPECT_THAT(menu.rows(), ElementsAre("(1 task)", "-", "New Task", "x This & th__at"));
  first = "2 tasks";
  EXPECT_TRUE(menu.open());
  menu.click(menu.id(2));  // of the rows as they were
  EXPECT_THAT(menu.rows(), ElementsAre("(2 tasks)", "-", "New Task", "x This & th__at"));
  longer = true;
  menu.open();
  EXPECT_THAT(menu.rows(), SizeIs(5));
  menu.click(menu.id(4));
  menu.click(menu.id(3));
  EXPECT_THAT(journal, ElementsAre("new", "quit", "that"));
}

TEST_F(StatusItemTest, OpensItsMenuForAPanelThatShowsNone) {
  show();
  first = "2 tasks";
  panel.call("ContextMenu", {120, 45});
  EXPECT_EQ(poppedUpAt, QPoint(120, 45));
  ASSERT_THAT(poppedUp, SizeIs(4));
  EXPECT_EQ(poppedUp[0].title, "2 tasks");
}

TEST_F(StatusItemTest, TellsPanelsWhatItIs) {
  show();
  const std::map<QString, QVariant> kProperties{{"Category", "ApplicationStatus"},
                                                {"Id", "org.brimle.Brimle"},
                                                {"Title", "Brimle"},
                                                {"Status", "Active"},
                                                {"WindowId", 0},
                                                {"IconName", ""},
                                                {"ItemIsMenu", false}};
  for (const auto& [name, value] : kProperties) EXPECT_EQ(panel.property(name), value) << name.toStdString();
}

TEST_F(StatusItemTest, IsUnmovedByCallsThatMeanNothingToIt) {
  show();
  panel.call("SecondaryActivate", {0, 0});
  panel.call("Scroll", {-120, "vertical"});
  const std::pair<const char*, QVariantList> kRefused[] = {
      {"Activate", {}}, {"Activate", {"0", "0"}}, {"ProvideXdgActivationToken", {7}}, {"deleteLater", {}}};
  for (const auto& [method, arguments] : kRefused)
    EXPECT_TRUE(panel.isRefused(method, arguments)) << method << arguments.size();
  EXPECT_THAT(journal, IsEmpty());
  panel.call("Activate", {-2147483647, 2147483647});
  panel.call("ContextMenu", {-2147483647, 2147483647});
  EXPECT_THAT(journal, ElementsAre("click "));
  EXPECT_THAT(poppedUp, SizeIs(4));
}

TEST_F(StatusItemTest, WaitsForNoWatcher) {
  SilentService silent("org.kde.StatusNotifierWatcher");
  install(item);
  item.setTitle(" 3", "3 tasks");
  EXPECT_TRUE(silent.isNotWaitedFor("RegisterStatusNotifierItem"));
}

}  // namespace
}  // namespace brimle
