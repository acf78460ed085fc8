#include "platform/desktop/qt_global_menu.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QTest>

#include "platform_qt/menu_client.h"

namespace brimle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kName = "com.canonical.AppMenu.Registrar";
constexpr auto kPath = "/com/canonical/AppMenu/Registrar";

}  // namespace

/// A desktop's bar for the menus of all programs.
class Registrar : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "com.canonical.AppMenu.Registrar")

 public:
  std::vector<WId> windows;  ///< those that registered, one after the other
  BusClient client{"registrar"};
  MenuClient menu{client};  ///< of the window that registered last

  Registrar() { client.bus().registerObject(kPath, this, QDBusConnection::ExportAllSlots); }

  void appear() { ASSERT_TRUE(client.bus().registerService(kName)); }
  void vanish() { ASSERT_TRUE(client.bus().unregisterService(kName)); }
  void await(std::size_t count) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return windows.size() >= count; }, BusClient::kPatience));
  }
  /// Returns when what the program said in answer to what it was told has arrived.
  void settle() {
    for (int round = 0; round < 2; ++round) {
      for (const QDBusConnection& bus : {QDBusConnection::sessionBus(), client.bus()})
        bus.interface()->isServiceRegistered(kName);
      QCoreApplication::processEvents();
    }
  }

 public slots:
  void RegisterWindow(uint window, const QDBusObjectPath& path) {
    windows.push_back(window);
    menu.service = message().service();
    menu.path = path.path();
  }
};

namespace {

class GlobalMenu : public testing::Test {
 protected:
  GlobalMenu() {
    window.create();
    bar = {{.title = "",
            .items = {{.title = "Start at Login", .action = [] {}, .on = false}},
            .willOpen =
                [this] {
                  ++openings;
                  bar[0].items[0].on = isAtLogin;
                  menu.refreshMarks(bar);
                }},
           {.title = "File", .items = {{.title = "New Task", .action = [this] { ++newTasks; }, .key = 'n'}}}};
    menu.install(bar);
  }

  Registrar registrar;
  QWindow window;
  QtGlobalMenu menu;
  MenuBar bar;
  bool isAtLogin = false;
  int openings = 0, newTasks = 0;
};

TEST_F(GlobalMenu, IsOfferedWithItsWindowToEachRegistrarThatComes) {
  registrar.appear();
  registrar.settle();
  EXPECT_THAT(registrar.windows, IsEmpty()) << "there is no window yet";
  menu.setWindow(window);
  registrar.await(1);
  registrar.vanish();
  registrar.settle();
  registrar.appear();
  registrar.await(2);
  const WId first = window.winId();
  window.destroy();
  QWindow another;  // takes the number that has become free
  another.create();
  window.create();
  menu.setWindow(window);
  registrar.await(3);
  registrar.settle();
  EXPECT_NE(window.winId(), first);
  EXPECT_THAT(registrar.windows, ElementsAre(first, first, window.winId()));
}

TEST_F(GlobalMenu, IsOfferedToARegistrarThatComesLater) {
  menu.setWindow(window);
  registrar.settle();
  registrar.appear();
  registrar.await(1);
  EXPECT_THAT(registrar.windows, ElementsAre(window.winId()));
}

TEST_F(GlobalMenu, HasTheMenusOfTheBarAsTheyAreNow) {
  registrar.appear();
  menu.setWindow(window);
  registrar.await(1);
  EXPECT_THAT(registrar.menu.rows(),
              ElementsAre("Brimle:", "  o Start at Login", "File:", "  New Task [Control+N]"));
  registrar.menu.click(registrar.menu.id(3));
  EXPECT_EQ(newTasks, 1);

  const int before = openings;
  isAtLogin = true;
  EXPECT_TRUE(registrar.menu.open(registrar.menu.id(0)));
  EXPECT_EQ(openings, before + 1);
  EXPECT_THAT(registrar.menu.newRows, ElementsAre("x Start at Login"));

  bar[1].title = "Ablage";
  menu.install(bar);
  registrar.settle();
  EXPECT_THAT(registrar.menu.newRows, ElementsAre("x Start at Login", "Ablage"));
}

TEST_F(GlobalMenu, WaitsForNoRegistrar) {
  SilentService silent(kName);
  menu.setWindow(window);
  EXPECT_TRUE(silent.isNotWaitedFor("RegisterWindow"));
}

}  // namespace
}  // namespace brimle

#include "global_menu_test.moc"
