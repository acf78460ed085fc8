// The menu bar in a desktop's own bar for the menus of all programs.
#include "platform/desktop/qt_global_menu.h"

#include <gmock/gmock.h>

#include <QDBusObjectPath>

#include "platform_qt/neighbour.h"
#include "platform_qt/patience.h"

namespace brimle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr auto kMenuPath = "/org/brimle/Brimle/MenuBar";

struct GlobalMenu : testing::Test {
  GlobalMenu() {
    window.create();
    menu.install(bar);
  }
  /// The windows that registered, one after the other.
  std::vector<WId> windows() const {
    std::vector<WId> windows;
    for (const QDBusMessage& call : registrar.calls) windows.push_back(call.arguments()[0].toUInt());
    return windows;
  }

  Neighbour registrar{"com.canonical.AppMenu.Registrar"};
  QWindow window;
  QtGlobalMenu menu;
  bool isAtLogin = false;
  MenuBar bar{{.title = "",
               .items = {{.title = "Start at Login", .action = [] {}, .on = false}},
               .willOpen =
                   [this] {
                     bar[0].items[0].on = isAtLogin;
                     menu.refreshMarks(bar);
                   }},
              {.title = "File", .items = {{.title = "New Task", .action = [] {}, .key = 'n'}}}};
};

TEST_F(GlobalMenu, IsOfferedWithItsWindowToEachRegistrarThatComes) {
  registrar.appear();
  registrar.settle();
  EXPECT_THAT(windows(), IsEmpty()) << "there is no window yet";
  menu.setWindow(window);
  registrar.waitForCalls(1);
  registrar.vanish();
  registrar.settle();
  const WId first = window.winId();
  window.destroy();
  QWindow another;  // takes the number that has become free
  another.create();
  window.create();
  menu.setWindow(window);
  registrar.settle();
  registrar.appear();
  registrar.waitForCalls(2);
  EXPECT_NE(window.winId(), first);
  EXPECT_THAT(windows(), ElementsAre(first, window.winId()));
  EXPECT_EQ(registrar.calls[0].arguments()[1].value<QDBusObjectPath>().path(), kMenuPath);
}

TEST_F(GlobalMenu, HasTheMenusOfTheBarAsTheyAreNow) {
  const auto hasChangedWhenItOpens = [this] {
    return registrar.ask(kMenuPath, "com.canonical.dbusmenu", "AboutToShow", {0}).value(0).toBool();
  };
  EXPECT_FALSE(hasChangedWhenItOpens());
  isAtLogin = true;
  EXPECT_TRUE(hasChangedWhenItOpens());
  bar[1].title = "Ablage";
  menu.install(bar);
  registrar.settle();
  EXPECT_THAT(registrar.heard, SizeIs(3)) << "of the first menus, of the mark and of the title";
}

}  // namespace
}  // namespace brimle
