#include "platform/desktop/qt_bus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <utility>

namespace brimle {

void callWithoutWaiting(const QDBusConnection& bus, const QDBusMessage& message, QObject* owner,
                        std::function<void(const QDBusPendingCall& reply)> answered) {
  auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), owner);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, owner,
                   [watcher, answered = std::move(answered)] {
                     watcher->deleteLater();
                     answered(*watcher);
                   });
}

std::unique_ptr<QDBusServiceWatcher> watchOwner(const QDBusConnection& bus, const QString& service,
                                                std::function<void(const QString& newOwner)> changed) {
  auto watcher =
      std::make_unique<QDBusServiceWatcher>(service, bus, QDBusServiceWatcher::WatchForOwnerChange);
  QObject::connect(watcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, watcher.get(),
                   [changed = std::move(changed)](const QString&, const QString&, const QString& newOwner) {
                     changed(newOwner);
                   });
  return watcher;
}

}  // namespace brimle
