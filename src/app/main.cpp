// The program: finds its folders, makes sure it is alone on its data, puts the parts together, runs.
#include <QApplication>
#include <QPalette>
#include <QQuickWindow>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <utility>

#include "app/core/window_rules.h"
#include "i18n/i18n.h"
#include "i18n/region.h"
#include "model/data_folder.h"
#include "model/store.h"
#include "platform/desktop/posix_files.h"
#include "platform/desktop/posix_folder_lock.h"
#include "platform/desktop/qt_desktop.h"
#include "platform/desktop/qt_instance.h"
#include "platform/desktop/qt_notification_center.h"
#include "platform/desktop/qt_pasteboard.h"
#include "platform/desktop/qt_preferences_store.h"
#include "platform/desktop/qt_settings_portal.h"
#include "platform/desktop/qt_time.h"
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

/// What a second launch does: the first instance comes forward. The process's exit status.
int handOver() {
  if (activateRunningInstance()) return 0;
  std::fprintf(stderr, "%s\n", std::string(I18n::t("Brimle is already open.")).c_str());
  return 1;
}

/// The appearance that is forced by the setting, else the desktop's.
Appearance appearanceOf(const std::optional<std::string>& setting, bool desktopIsDark) {
  const bool dark = setting == "dark" || (setting != "light" && desktopIsDark);
  return dark ? Appearance::dark : Appearance::light;
}

int run(int argc, char** argv) {
  const Folders folders;
  const SystemLocale locale = systemLocale(environmentVariable);
  PosixFiles files;
  const Path dataFolder = locateDataFolder(files, folders.data);
  const FolderLock lock(dataFolder);
  const bool alone = lock.result() != FolderLock::Result::heldByAnother;

  QtPreferencesStore preferences(folders.config / "brimle" / "settings.ini");
  migrateFromQuorel(preferences, QtPreferencesStore(folders.config / "quorel" / "settings.ini"));
  I18n::setLang(I18n::resolve(preferences.string("language").value_or("system"), locale.preferredLanguages));
  if (!alone) {
    const QCoreApplication application(argc, argv);
    return handOver();
  }

  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QApplication application(argc, argv);
  QApplication::setDesktopFileName(QStringLiteral("org.brimle.Brimle"));
  QApplication::setQuitOnLastWindowClosed(false);
  // For a desktop that tells no preference: what its own colours suggest, before ours replace them.
  const bool desktopLooksDark = QApplication::palette().window().color().lightness() < 128;

  QtTime time;
  QtSettingsPortal settings;
  QtDesktop desktop(settings);
  QtPasteboard pasteboard;
  // Whoever asks the program to come forward also asks which day it is.
  std::function<void(const QByteArray&)> comeForward;
  const auto asked = [&comeForward](const QByteArray& token) {
    if (comeForward) comeForward(token);
  };
  QtInstance instance(asked);
  const bool reachable = instance.announce();
  QtNotificationCenter notifications(time, files, folders.state / "brimle", asked);

  Store store({time, files, desktop, notifications}, regionOf(locale.region), dataFolder);
  UIState ui(preferences, locale.preferredLanguages);
  SelectionModel sel(time);
  Signal<> todayFocusAdd;
  ContentView content(store, time);
  ArchiveView archive(store, sel, ui, time);
  MainWindow mainWindow({store, content, archive, ui, sel, time, todayFocusAdd}, pasteboard);
  comeForward = [&](const QByteArray& token) {
    store.rolloverIfNeeded();
    mainWindow.bringForward(token);
  };

  double expandedHeight = kRegularSize.height;
  bool isCompactNow = false;
  const Subscription folding = ui.observe([&] {
    if (std::exchange(isCompactNow, ui.compact()) == ui.compact()) return;
    const Rect frame = mainWindow.frame();
    if (isCompactNow) expandedHeight = frame.height;
    mainWindow.setFrame(constrainToScreen(isCompactNow ? folded(frame) : unfolded(frame, expandedHeight),
                                          mainWindow.visibleScreen()),
                        true);
  });

  const auto applyAppearance = [&] {
    mainWindow.theme().setAppearance(
        appearanceOf(preferences.string("appearance"), settings.dark().value_or(desktopLooksDark)));
    mainWindow.theme().setHighContrast(settings.highContrast());
    mainWindow.theme().setReduceMotion(settings.reduceMotion());
    mainWindow.theme().setTextScale(settings.textScale());
  };
  const Subscription following = settings.observe(applyAppearance);
  applyAppearance();
  // A window that nobody can ask for again must not be closed into nowhere.
  if (!reachable) mainWindow.onClose([] { QCoreApplication::quit(); });
  QObject::connect(&application, &QApplication::applicationStateChanged, &application, [&](auto state) {
    if (state == Qt::ApplicationActive) store.rolloverIfNeeded();
  });
  store.resyncArrivalNotifications();
  mainWindow.bringForward();
  return QApplication::exec();
}

}  // namespace
}  // namespace brimle

int main(int, char** argv) {
  int argc = 1;  // no arguments are read
  return brimle::run(argc, argv);
}
