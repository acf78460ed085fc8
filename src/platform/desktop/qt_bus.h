// What the clients of the session bus share: calls that nobody waits for, and watching who provides a
// service.
#pragma once

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QDBusServiceWatcher>
#include <functional>
#include <memory>

namespace brimle {

/// Sends the call; `answered` is given the reply, be it an error, unless `owner` is gone by then.
void callWithoutWaiting(const QDBusConnection& bus, const QDBusMessage& message, QObject* owner,
                        std::function<void(const QDBusPendingCall& reply)> answered);

/// Calls `changed` for as long as the watcher lives, whenever the service comes, goes or passes to another
/// program; the new owner is empty where it went.
std::unique_ptr<QDBusServiceWatcher> watchOwner(const QDBusConnection& bus, const QString& service,
                                                std::function<void(const QString& newOwner)> changed);

}  // namespace brimle
