// The StatusItem port as a StatusNotifierItem of our own with the count painted into its icon.
//
// It offers itself to the desktop's StatusNotifierWatcher, to each that turns up, and waits for none: one
// that never answers holds nobody up. The older trays that embed windows are not used. The desktop tells the
// item's name by QCoreApplication::applicationName.
#pragma once

#include <QColor>
#include <QObject>
#include <QPoint>
#include <memory>

#include "base/signal.h"
#include "platform/desktop/qt_settings_portal.h"
#include "platform/status_item.h"

class QDBusServiceWatcher;

namespace brimle {

class QtDBusMenu;
class QtStatusNotifier;

class QtStatusItem : public QObject, public StatusItem {
  Q_OBJECT

 public:
  /// Shows a menu at a place on the screen.
  using PopUp = std::function<void(const std::vector<MenuEntry>& items, QPoint place)>;

  /// `settings` must outlive this. `desktopLooksDark` holds where it tells no preference. `popUp` is for
  /// panels that do not show the menu themselves.
  QtStatusItem(QtSettingsPortal& settings, bool desktopLooksDark, PopUp popUp);
  ~QtStatusItem() override;

  void install(Actions actions) override;
  /// A title that is no number stands for the circle alone.
  void setTitle(const std::string& title, const std::string& tooltip) override;

 private slots:
  void hostRegistered();

 private:
  void offer();
  void redraw();
  QColor ink() const;

  QtSettingsPortal& settings_;
  const bool desktopLooksDark_;
  const PopUp popUp_;
  Actions actions_;
  long long count_ = 0;
  QString tooltip_;
  QColor drawnInk_;  ///< of the icon that is shown
  long long drawnCount_ = 0;
  bool isTaken_ = false;              ///< by the watcher that is there now
  std::unique_ptr<QtDBusMenu> menu_;  ///< this and what follows only where there is a bus
  std::unique_ptr<QtStatusNotifier> notifier_;
  std::unique_ptr<QDBusServiceWatcher> watchers_;
  Subscription appearance_;
};

}  // namespace brimle
