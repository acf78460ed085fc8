// The icon in the panel: on which panels it appears, what it shows there, and what it does when it is used.
#include "platform/desktop/qt_status_item.h"

#include <gmock/gmock.h>

#include <QDBusObjectPath>
#include <QtEndian>

#include "platform/desktop/qt_status_icon.h"
#include "platform_qt/neighbour.h"
#include "platform_qt/patience.h"

namespace brimle {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

constexpr auto kWatcher = "org.kde.StatusNotifierWatcher";
constexpr auto kItem = "org.kde.StatusNotifierItem";
constexpr QRgb kDarkInk = qRgb(0x2b, 0x2b, 0x2b);
constexpr QRgb kLightInk = qRgb(0xf2, 0xf2, 0xf2);

/// A panel as status items see it: the watcher that they register with, which takes none before it has a
/// host, and the host, which asks the last of them what it shows.
struct Panel : Neighbour {
  Panel() : Neighbour(kWatcher) {}

  void answer(const QDBusMessage& call) override {
    if (!hasHost) return refuse(call);
    path = call.arguments().value(0).toString();
    ++registrations;
    reply(call, {});
  }
  void gainHost() {
    hasHost = true;
    tell("/StatusNotifierWatcher", kWatcher, "StatusNotifierHostRegistered", {});
  }
  void awaitRegistrations(int count) {
    waitFor([&] { return registrations >= count; });
    settle();
    EXPECT_EQ(registrations, count);
  }

  QVariant shown(const QString& name) {
    return ask(path, "org.freedesktop.DBus.Properties", "Get", {kItem, name}).value(0);
  }
  std::string tooltip() { return shown("ToolTip").toList().value(2).toString().toStdString(); }
  /// The item's icon of that many pixels; a null image where it has none.
  QImage icon(int side) {
    for (const QVariant& picture : shown("IconPixmap").toList()) {
      const QVariantList parts = picture.toList();  // width, height, pixels
      const QByteArray pixels = parts[2].toByteArray();
      if (parts[0] != side || parts[1] != side || pixels.size() != 4 * side * side) continue;
      QImage image(side, side, QImage::Format_ARGB32);
      qFromBigEndian<quint32>(pixels.constData(), side * side, image.bits());
      return image;
    }
    return {};
  }
  QRgb ink() { return icon(32).pixel(16, 0) | 0xff000000; }  // at the top of the ring
  auto news(const char* signal) const { return std::ranges::count(heard, signal, &QDBusMessage::member); }
  void use(const char* method, const QVariantList& arguments) { ask(path, kItem, method, arguments); }

  bool hasHost = true;
  int registrations = 0;
  QString path;
};

class StatusItemTest : public testing::Test {
 protected:
  void install(QtStatusItem& one) {
    one.install({.click = [this](const std::string& token) { journal.push_back("click " + token); },
                 .menu =
                     [this] {
                       return std::vector<MenuEntry>{{.title = first}, {.title = "Quit"}};
                     }});
  }
  /// On a panel that is there.
  void show() {
    panel.appear();
    install(item);
    panel.awaitRegistrations(1);
  }

  static QImage picture(int side, long long count) {
    return statusPicture(side, count, kDarkInk).convertToFormat(QImage::Format_ARGB32);
  }

  Panel panel;
  QtSettingsPortal settings;
  std::vector<MenuEntry> poppedUp;
  QPoint poppedUpAt;
  QtStatusItem::PopUp popUp = [this](const std::vector<MenuEntry>& items, QPoint place) {
    poppedUp = items;
    poppedUpAt = place;
  };
  QtStatusItem item{settings, false, popUp};
  std::string first = "1 task";
  std::vector<std::string> journal;
};

TEST_F(StatusItemTest, AppearsOnceAPanelIsThereAndOnEachThatFollows) {
  install(item);
  item.setTitle(" 3", "3 tasks");
  panel.settle();
  panel.hasHost = false;
  panel.appear();
  panel.settle();
  EXPECT_EQ(panel.registrations, 0);
  panel.gainHost();
  panel.awaitRegistrations(1);
  EXPECT_EQ(panel.tooltip(), "3 tasks");
  EXPECT_EQ(panel.icon(22), picture(22, 3));
  EXPECT_EQ(panel.shown("Status"), "Active") << "any other is hidden";

  panel.gainHost();
  panel.settle();
  EXPECT_EQ(panel.registrations, 1) << "it was taken already";

  panel.vanish();
  item.setTitle(" 4", "4 tasks");
  panel.appear();
  panel.awaitRegistrations(2);
  EXPECT_EQ(panel.tooltip(), "4 tasks");
}

TEST_F(StatusItemTest, ShowsTheCountInItsIconAndTellsItInWords) {
  show();
  const struct {
    const char *title, *tooltip;
    long long count;
    int icons, tooltips;  ///< how many times the panel is told that there is a new one
  } kCases[] = {{" 1", "1 task", 1, 1, 1},
                {" 250", "250 tasks", 250, 1, 1},
                {" 250", "250 Aufgaben", 250, 0, 1},
                {" 7", "250 Aufgaben", 7, 1, 0},
                {"", "all done", 0, 1, 1},
                {"no number", "", 0, 0, 1},
                {" 99999999999999999999", "too many", 0, 0, 1}};
  for (const auto& [title, tooltip, count, icons, tooltips] : kCases) {
    SCOPED_TRACE(title);
    panel.heard.clear();
    item.setTitle(title, tooltip);
    EXPECT_EQ(panel.tooltip(), tooltip);
    for (const int side : {16, 22, 24, 32, 48, 64}) EXPECT_EQ(panel.icon(side), picture(side, count)) << side;
    EXPECT_EQ(panel.news("NewIcon"), icons);
    EXPECT_EQ(panel.news("NewToolTip"), tooltips);
  }
}

TEST_F(StatusItemTest, TakesTheColourThatTheUserAsksFor) {
  show();
  Neighbour portal("org.freedesktop.portal.Desktop");
  portal.appear();
  portal.waitForCalls(1);
  portal.settle();
  for (const auto& [colorScheme, ink] : {std::pair(1u, kLightInk), {2u, kDarkInk}, {0u, kDarkInk}}) {
    portal.tell(
        "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged",
        {"org.freedesktop.appearance", "color-scheme", QVariant::fromValue(QDBusVariant(colorScheme))});
    portal.settle();
    EXPECT_EQ(panel.ink(), ink) << colorScheme;
  }
}

TEST_F(StatusItemTest, IsLightOnAPanelThatIsAlwaysDark) {
  panel.appear();
  const struct {
    const char* desktop;
    bool looksDark;
    QRgb ink;
  } kCases[] = {{"ubuntu:GNOME", false, kLightInk},
                {"GNOME-Classic:GNOME", false, kDarkInk},
                {"KDE", false, kDarkInk},
                {"KDE", true, kLightInk},
                {"", true, kLightInk}};
  for (const auto& [desktop, looksDark, ink] : kCases) {
    qputenv("XDG_CURRENT_DESKTOP", desktop);
    QtStatusItem one(settings, looksDark, popUp);
    install(one);
    panel.awaitRegistrations(panel.registrations + 1);
    EXPECT_EQ(panel.ink(), ink) << desktop;
  }
  qunsetenv("XDG_CURRENT_DESKTOP");
}

TEST_F(StatusItemTest, HasItsMenuAsItIsNow) {
  show();
  const QString path = panel.shown("Menu").value<QDBusObjectPath>().path();
  const auto hasChangedWhenItOpens = [&] {
    return panel.ask(path, "com.canonical.dbusmenu", "AboutToShow", {0}).value(0).toBool();
  };
  EXPECT_TRUE(hasChangedWhenItOpens()) << "it is asked for when it opens";
  EXPECT_FALSE(hasChangedWhenItOpens());
  first = "2 tasks";
  EXPECT_TRUE(hasChangedWhenItOpens());

  first = "3 tasks";
  panel.use("ContextMenu", {120, 45});  // by a panel that shows no menus
  EXPECT_EQ(poppedUpAt, QPoint(120, 45));
  ASSERT_THAT(poppedUp, SizeIs(2));
  EXPECT_EQ(poppedUp[0].title, "3 tasks");
}

TEST_F(StatusItemTest, IsClickedWithTheTokenOfThatClickAndUnmovedByCallsThatMeanNothing) {
  show();
  panel.use("SecondaryActivate", {0, 0});
  panel.use("Scroll", {-120, "vertical"});
  const std::pair<const char*, QVariantList> kRefused[] = {
      {"Activate", {}}, {"Activate", {"0", "0"}}, {"ProvideXdgActivationToken", {7}}, {"deleteLater", {}}};
  for (const auto& [method, arguments] : kRefused)
    EXPECT_TRUE(panel.isRefused(panel.path, kItem, method, arguments)) << method << arguments.size();
  panel.use("ProvideXdgActivationToken", {"token 1"});
  panel.use("Activate", {0, 0});
  panel.use("Activate", {-2147483647, 2147483647});
  EXPECT_THAT(journal, ElementsAre("click token 1", "click "));
}

}  // namespace
}  // namespace brimle
