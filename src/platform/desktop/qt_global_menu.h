// The menu bar in the desktop's own, where it has one for all programs (com.canonical.AppMenu.Registrar): on
// X11, where such a bar finds a menu by the number of its window. Elsewhere nothing is shown.
//
// It offers the menus to each registrar that turns up, waits for none, and starts none.
#pragma once

#include <QObject>
#include <QWindow>
#include <memory>

#include "platform/desktop/qt_dbus_menu.h"
#include "platform/menu_host.h"

class QDBusServiceWatcher;

namespace brimle {

class QtGlobalMenu : public QObject, public MenuHost {
  Q_OBJECT

 public:
  QtGlobalMenu();
  ~QtGlobalMenu() override;

  void install(const MenuBar& bar) override;
  void refreshMarks(const MenuBar& bar) override;

  /// The window that the menu bar belongs to. To be called after each time it was shown: the desktop has
  /// destroyed a window that was closed, and gives another number to the new one.
  void setWindow(const QWindow& window);

 private:
  std::vector<MenuEntry> entries();
  void offer();

  MenuBar bar_;
  QtDBusMenu menu_;
  quint32 window_ = 0;  ///< 0 for none
  std::unique_ptr<QDBusServiceWatcher> registrars_;
};

}  // namespace brimle
