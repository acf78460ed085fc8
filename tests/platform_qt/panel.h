// A desktop's panel on the session bus, as its status items see it: the StatusNotifierWatcher that they
// register with, and the host that asks them what they show. It also speaks for the Settings portal.
#pragma once

#include <QDBusContext>
#include <QImage>
#include <string>

#include "platform_qt/bus_client.h"
#include "platform_qt/menu_client.h"

namespace brimle {

class Panel : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")

 public:
  int registrations = 0;
  int newIcons = 0;     ///< how often items said that their icon is new
  int newToolTips = 0;  ///< and their tooltip

  Panel();

  /// Without a host it refuses items.
  void start(bool withHost = true);
  void stop();
  void gainHost();
  void awaitRegistrations(int count);
  /// Returns when what the program asked the watcher is answered and the answer has arrived.
  void settle();
  /// The user asks all programs for a dark (1) or a light (2) appearance, or for neither (0).
  void prefer(uint colorScheme);

  // What follows is about the item that registered last.
  QVariant property(const QString& name);
  /// Its icon of that many pixels; a null image where it has none.
  QImage icon(int side);
  std::string tooltip();
  void call(const QString& method, const QVariantList& arguments);
  bool isRefused(const QString& method, const QVariantList& arguments);
  MenuClient& menu();

 public slots:
  void RegisterStatusNotifierItem(const QString& path);

 private slots:
  void iconChanged() { ++newIcons; }
  void toolTipChanged() { ++newToolTips; }

 private:
  BusClient client_{"panel"};
  MenuClient menu_{client_};
  bool hasHost_ = false;
  QString service_, path_;  ///< of the item
};

}  // namespace brimle
