// The StatusItem port as a StatusNotifierItem (QSystemTrayIcon) with the count painted into its icon.
//
// Whether the desktop has a status area is asked on the session bus without waiting. Where one turns up later
// the item appears then, and again whenever its panel was started anew. The older trays that embed windows
// are not used. The desktop tells the item's name by QCoreApplication::applicationName.
#pragma once

#include <QColor>
#include <QObject>
#include <memory>

#include "base/signal.h"
#include "platform/desktop/qt_settings_portal.h"
#include "platform/status_item.h"

class QDBusServiceWatcher;
class QMenu;
class QSystemTrayIcon;

namespace brimle {

class QtStatusItem : public QObject, public StatusItem {
  Q_OBJECT

 public:
  /// `settings` must outlive this. `desktopLooksDark` holds where it tells no preference.
  QtStatusItem(QtSettingsPortal& settings, bool desktopLooksDark);
  ~QtStatusItem() override;

  void install(Actions actions) override;
  /// A title that is no number stands for the circle alone. The rows of the menu have no submenus.
  void setTitle(const std::string& title, const std::string& tooltip) override;

 private slots:
  void lookForHost();

 private:
  void appear();
  void redraw();
  QColor ink() const;
  void click();
  void fillMenu();
  void layOutMenu();
  void choose(std::size_t row) const;

  QtSettingsPortal& settings_;
  const bool desktopLooksDark_;
  Actions actions_;
  long long count_ = 0;
  QString tooltip_;
  QColor drawnInk_;  ///< of the icon that is shown
  long long drawnCount_ = 0;
  std::vector<MenuEntry> rows_;  ///< those of the menu, as it was told last
  std::unique_ptr<QDBusServiceWatcher> watcher_;
  std::unique_ptr<QMenu> menu_;
  std::unique_ptr<QSystemTrayIcon> icon_;  ///< none before there is a status area
  Subscription appearance_;
};

}  // namespace brimle
