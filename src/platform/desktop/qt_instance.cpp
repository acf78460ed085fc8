#include "platform/desktop/qt_instance.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QEventLoop>
#include <QTimer>

#include "platform/application_id.h"
#include "platform/desktop/qt_bus.h"

namespace brimle {
namespace {

constexpr auto kService = kApplicationId;
constexpr auto kPath = "/org/brimle/Brimle";
constexpr auto kInterface = "org.freedesktop.Application";
/// How long an instance that holds the lock may take until it is on the bus.
constexpr int kStartingMilliseconds = 3000;
constexpr int kAnswerMilliseconds = 3000;

std::string tokenOf(const QVariantMap& platformData) {
  for (const char* key : {"activation-token", "desktop-startup-id"}) {
    const std::string token = platformData.value(QLatin1String(key)).toString().toStdString();
    if (!token.empty()) return token;
  }
  return {};
}

QVariantMap ownPlatformData() {
  QVariantMap data;
  const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
  if (!token.isEmpty()) data.insert(QStringLiteral("activation-token"), token);
  const QString startup = qEnvironmentVariable("DESKTOP_STARTUP_ID");
  if (!startup.isEmpty()) data.insert(QStringLiteral("desktop-startup-id"), startup);
  return data;
}

/// Waits until somebody owns the application's name, or the time is over.
bool waitForService(const QDBusConnection& bus) {
  QDBusServiceWatcher watcher(kService, bus, QDBusServiceWatcher::WatchForRegistration);
  QEventLoop loop;
  QObject::connect(&watcher, &QDBusServiceWatcher::serviceRegistered, &loop, &QEventLoop::quit);
  QTimer::singleShot(kStartingMilliseconds, &loop, &QEventLoop::quit);
  if (bus.interface()->isServiceRegistered(kService)) return true;
  loop.exec();
  return bus.interface()->isServiceRegistered(kService);
}

}  // namespace

QtInstance::QtInstance(Requests requests) : requests_(std::move(requests)) {}

/// A name that somebody else owns is not waited for.
void QtInstance::announce() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.registerObject(kPath, this, QDBusConnection::ExportAllSlots);
  QDBusMessage request = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
  constexpr uint doNotQueue = 4;
  request << QString::fromLatin1(kService) << doNotQueue;
  callWithoutWaiting(bus, request, this, [this](const QDBusPendingCall& call) {
    constexpr uint primaryOwner = 1;
    const QDBusPendingReply<uint> reply = call;
    hasName_ = !reply.isError() && reply.value() == primaryOwner;
  });
}

bool QtInstance::isReachable() const {
  return hasName_ && QDBusConnection::sessionBus().isConnected();
}

void QtInstance::Activate(const QVariantMap& platformData) {
  requests_.activate(tokenOf(platformData));
}

void QtInstance::Open(const QStringList&, const QVariantMap& platformData) {
  Activate(platformData);
}

void QtInstance::ActivateAction(const QString& name, const QVariantList&, const QVariantMap& platformData) {
  if (name == QLatin1String("new-task")) requests_.newTask(tokenOf(platformData));
}

bool activateRunningInstance() {
  const QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected() || !waitForService(bus)) return false;
  QDBusMessage request =
      QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Activate"));
  request << ownPlatformData();
  return bus.call(request, QDBus::Block, kAnswerMilliseconds).type() == QDBusMessage::ReplyMessage;
}

}  // namespace brimle
