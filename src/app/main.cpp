// The program: finds its folders, makes sure it is alone on its data, puts the parts together, runs.
#include <QApplication>
#include <QIcon>
#include <QQuickWindow>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <memory>
#include <utility>

#include "app/core/app_delegate.h"
#include "app/qt_application.h"
#include "app/services.h"
#include "i18n/i18n.h"
#include "i18n/region.h"
#include "model/data_folder.h"
#include "model/store.h"
#include "model/stored_day.h"
#include "platform/application_id.h"
#include "platform/build_settings.h"
#include "platform/desktop/posix_bus_probe.h"
#include "platform/desktop/posix_files.h"
#include "platform/desktop/posix_folder_lock.h"
#include "platform/desktop/qt_instance.h"
#include "platform/desktop/qt_notification_center.h"
#include "platform/desktop/qt_preferences_store.h"
#include "platform/desktop/qt_workspaces.h"
#include "platform/system_locale.h"
#include "prefs/migration.h"
#include "prefs/ui_state.h"
#include "views/content_view.h"
#include "views/qt/main_window.h"

namespace brimle {
namespace {

std::optional<std::string> environmentVariable(const char* name) {
  const char* value = std::getenv(name);
  return value ? std::optional<std::string>(value) : std::nullopt;
}

/// A base directory of the XDG specification; relative paths in the variable are ignored, as it asks.
Path baseDirectory(const char* variable, const char* fallbackBelowHome) {
  const Path path = environmentVariable(variable).value_or("");
  if (path.is_absolute()) return path;
  return Path(environmentVariable("HOME").value_or("/")) / fallbackBelowHome;
}

struct Folders {
  Path data = baseDirectory("XDG_DATA_HOME", ".local/share");
  Path config = baseDirectory("XDG_CONFIG_HOME", ".config");
  Path state = baseDirectory("XDG_STATE_HOME", ".local/state");
};

/// A session bus that hangs would keep the window away for minutes: it is done without. Qt reads the variable
/// when it first wants the bus.
void passOverHangingBus() {
  constexpr std::chrono::seconds kPatience(2);
  if (busHangs(sessionBusAddresses(), kPatience)) ::setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
}

/// What a second launch does: the first instance comes forward. The process's exit status.
int handOver() {
  if (activateRunningInstance()) return 0;
  std::fprintf(stderr, "%s\n", I18n::t("Brimle is already open.").c_str());
  return 1;
}

/// The JSON parser looks into the environment when it first reads. The libraries of the desktop change it, so
/// it is to have looked before it reads on a thread beside theirs.
void letParserReadEnvironment() {
  readDayFile("{}");
}

/// What the window tells, and who is told.
MainWindow::Reports reportsTo(AppDelegate& app, QtGlobalMenu& globalMenu, const QtInstance& instance) {
  return {.key = [&](const KeyPress& key) { return app.performKeyEquivalent(key); },
          .frameChanged = [&] { app.windowFrameChanged(); },
          .shown =
              [&](QWindow& shown) {
                showOnAllWorkspaces(shown);
                globalMenu.setWindow(shown);
              },
          // A window that nobody can ask for again must not be closed into nowhere.
          .closed =
              [&] {
                if (!instance.isReachable()) QCoreApplication::quit();
              }};
}

/// Tells the delegate what happens to the program and to its screens.
void watchApplication(QApplication& application, AppDelegate& app) {
  QObject::connect(&application, &QApplication::applicationStateChanged, &application, [&](auto state) {
    if (state == Qt::ApplicationActive) app.becameActive();
  });
  const auto screensChanged = [&] { QTimer::singleShot(0, &application, [&] { app.screensChanged(); }); };
  const auto watchScreen = [&application, screensChanged](QScreen* screen) {
    QObject::connect(screen, &QScreen::availableGeometryChanged, &application, screensChanged);
  };
  std::ranges::for_each(QApplication::screens(), watchScreen);
  QObject::connect(&application, &QApplication::screenAdded, &application, watchScreen);
  QObject::connect(&application, &QApplication::screenRemoved, &application, screensChanged);
  QObject::connect(&application, &QApplication::aboutToQuit, &application, [&] { app.willTerminate(); });
}

/// Tells Qt, and by it the desktop, which program this is.
void introduce(const Version& version) {
  QApplication::setApplicationName(QStringLiteral("Brimle"));
  QApplication::setApplicationVersion(QString::fromStdString(version.string()));
  QApplication::setDesktopFileName(QLatin1String(kApplicationId));
  QApplication::setQuitOnLastWindowClosed(false);
}

/// Once the event loop runs. What the first frame does not show waits until most machines have painted it,
/// and not for the frame itself: a window that nobody sees has none.
void launch(QApplication& application, AppDelegate& app) {
  constexpr std::chrono::milliseconds firstFrame(50);
  QTimer::singleShot(0, &application, [&] { app.finishedLaunching(); });
  QTimer::singleShot(firstFrame, &application, [&] {
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/qt/qml/Brimle/org.brimle.Brimle.svg")));
    app.joinDesktop();
  });
}

/// What the program finds before it meets the desktop.
struct Basis {
  const Folders folders;
  const SystemLocale locale = systemLocale(environmentVariable);
  PosixFiles files;
  const Path dataFolder = locateDataFolder(files, folders.data);
  const FolderLock lock{dataFolder};
  QtPreferencesStore preferences{folders.config / "brimle" / "settings.ini", files};

  Basis() {
    migrateFromQuorel(preferences, QtPreferencesStore(folders.config / "quorel" / "settings.ini", files));
    const std::string language = preferences.string("language").value_or("system");
    I18n::setLang(I18n::resolve(language, locale.preferredLanguages));
  }
};

int run(Basis& basis, int argc, char** argv) {
  letParserReadEnvironment();
  // While the libraries of the desktop are set up.
  auto stored = std::async(std::launch::async, [&] { return readStoredDay(basis.files, basis.dataFolder); });

  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QApplication application(argc, argv);
  UIState ui(basis.preferences, basis.locale.preferredLanguages);
  MainWindow::Foundation foundation(ui);
  const BuildSettings build = buildSettings();
  introduce(build.version);
  // What the desktop's own colours suggest, before ours replace them.
  const bool desktopLooksDark = QApplication::palette().window().color().lightness() < 128;
  Services services(basis.files, basis.preferences, build, desktopLooksDark);

  // Others can call before the program that answers them is put together.
  AppDelegate* delegate = nullptr;
  const auto reopen = [&](const std::string& token) {
    if (delegate) delegate->reopen(token);
  };
  QtInstance instance({.activate = reopen, .newTask = [&](const std::string& token) {
                         if (delegate) delegate->focusQuickAdd(token);
                       }});
  instance.announce();
  QtNotificationCenter notifications(services.time, basis.files, basis.folders.state / "brimle", reopen);

  Store store({services.time, basis.files, services.desktop, notifications}, regionOf(basis.locale.region),
              basis.dataFolder, stored.get());
  SelectionModel sel(services.time);
  Signal<> todayFocusAdd;
  ContentView content(store, services.time);
  ArchiveView archive(store, sel, ui, services.time);
  MainWindow window({store, content, archive, ui, sel, services.time, todayFocusAdd, services.links},
                    services.pasteboard, std::move(foundation));
  QtApplication desktopApplication(window.theme(), services.settings, desktopLooksDark);
  MenuHosts menus({&window.menus(), &services.globalMenu});
  AppDelegate app({services.time, services.desktop, basis.preferences, services.pasteboard, notifications,
                   desktopApplication, window, menus, services.status, *services.hotKey, services.loginItem,
                   services.updates, window.shortcuts(), services.links},
                  store, ui, todayFocusAdd, build.supportAddress);

  window.setReports(reportsTo(app, services.globalMenu, instance));
  watchApplication(application, app);
  const auto tellHotKey = [&] { window.shortcuts().setHotKey(services.hotKey->keyInForce()); };
  const Subscription hotKeyTold = services.hotKey->observe(tellHotKey);
  tellHotKey();
  delegate = &app;
  launch(application, app);
  return QApplication::exec();
}

}  // namespace
}  // namespace brimle

int main(int, char** argv) {
  int argc = 1;  // no arguments are read
  brimle::passOverHangingBus();
  brimle::Basis basis;
  if (basis.lock.result() != brimle::FolderLock::Result::heldByAnother) return brimle::run(basis, argc, argv);
  const QCoreApplication application(argc, argv);
  return brimle::handOver();
}
