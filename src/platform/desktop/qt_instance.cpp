#include "platform/desktop/qt_instance.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QEventLoop>
#include <QTimer>

namespace brimle {
namespace {

constexpr auto kService = "org.brimle.Brimle";
constexpr auto kPath = "/org/brimle/Brimle";
constexpr auto kInterface = "org.freedesktop.Application";
/// How long an instance that holds the lock may take until it is on the bus.
constexpr int kStartingMilliseconds = 3000;
constexpr int kAnswerMilliseconds = 3000;

QByteArray tokenOf(const QVariantMap& platformData) {
  for (const char* key : {"activation-token", "desktop-startup-id"}) {
    const QByteArray token = platformData.value(QLatin1String(key)).toString().toUtf8();
    if (!token.isEmpty()) return token;
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

QtInstance::QtInstance(std::function<void(QByteArray)> activate) : activate_(std::move(activate)) {}

bool QtInstance::announce() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return false;
  bus.registerObject(kPath, this, QDBusConnection::ExportAllSlots);
  QDBusMessage request = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
  constexpr uint doNotQueue = 4;
  request << QString::fromLatin1(kService) << doNotQueue;
  bus.asyncCall(request);
  return true;
}

void QtInstance::Activate(const QVariantMap& platformData) {
  activate_(tokenOf(platformData));
}

void QtInstance::Open(const QStringList&, const QVariantMap& platformData) {
  Activate(platformData);
}

void QtInstance::ActivateAction(const QString&, const QVariantList&, const QVariantMap& platformData) {
  Activate(platformData);
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
