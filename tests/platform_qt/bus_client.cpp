#include "platform_qt/bus_client.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMutex>
#include <QSemaphore>
#include <QTest>
#include <QThread>

namespace brimle {
namespace {

QVariant plain(const QVariant& value) {
  if (value.metaType() == QMetaType::fromType<QDBusVariant>())
    return plain(value.value<QDBusVariant>().variant());
  if (value.metaType() != QMetaType::fromType<QDBusArgument>()) return value;
  const auto argument = value.value<QDBusArgument>();
  if (argument.currentType() == QDBusArgument::MapType) {
    auto map = qdbus_cast<QVariantMap>(argument);
    for (QVariant& part : map) part = plain(part);
    return map;
  }
  if (argument.currentSignature() == QLatin1String("ai"))
    return QVariant::fromValue(qdbus_cast<QList<int>>(argument));
  const bool isArray = argument.currentType() == QDBusArgument::ArrayType;
  isArray ? argument.beginArray() : argument.beginStructure();
  QVariantList parts;
  while (!argument.atEnd()) parts.append(plain(argument.asVariant()));
  isArray ? argument.endArray() : argument.endStructure();
  return parts;
}

}  // namespace

BusClient::BusClient(const QString& name)
    : name_(name),
      bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)),
      call_(QDBusPendingCall::fromError(QDBusError())) {}

BusClient::~BusClient() {
  QDBusConnection::disconnectFromBus(name_);
}

QVariantList BusClient::ask(const QString& service, const QString& path, const QString& interface,
                            const QString& method, const QVariantList& arguments) {
  await(service, path, interface, method, arguments);
  EXPECT_FALSE(call_.isError()) << method.toStdString() << ": " << call_.error().message().toStdString();
  QVariantList parts;
  for (const QVariant& part : call_.reply().arguments()) parts.append(plain(part));
  return parts;
}

bool BusClient::isRefused(const QString& service, const QString& path, const QString& interface,
                          const QString& method, const QVariantList& arguments) {
  await(service, path, interface, method, arguments);
  return call_.isError();
}

/// What the program puts off until it has answered is done, too.
void BusClient::await(const QString& service, const QString& path, const QString& interface,
                      const QString& method, const QVariantList& arguments) {
  QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
  message.setArguments(arguments);
  call_ = bus_.asyncCall(message);
  EXPECT_TRUE(QTest::qWaitFor([this] { return hasAnswer(); }, kPatience)) << method.toStdString();
  QCoreApplication::processEvents();
}

class SilentService::Object : public QDBusVirtualObject {
 public:
  QThread thread;

  bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
    QMetaObject::invokeMethod(
        &mainThread_, [this] { beats_.release(); }, Qt::QueuedConnection);
    const bool goesOn = beats_.tryAcquire(1, kLongerThanACallWaits);
    const QMutexLocker lock(&mutex_);
    methods_.append(message.member());
    isHeldUp_ = isHeldUp_ || !goesOn;
    return true;
  }
  QString introspect(const QString&) const override { return {}; }

  bool wasCalled(const QString& method) {
    const QMutexLocker lock(&mutex_);
    return methods_.contains(method);
  }
  bool isHeldUp() {
    const QMutexLocker lock(&mutex_);
    return isHeldUp_;
  }
  /// Whether the main thread goes on from here is not looked at.
  void end() {
    beats_.release(kMoreCallsThanCome);
    thread.quit();
    thread.wait();
  }

 private:
  static constexpr int kLongerThanACallWaits = 15'000;  // milliseconds
  static constexpr int kMoreCallsThanCome = 1'000;

  QObject mainThread_;
  QSemaphore beats_;
  QMutex mutex_;
  QStringList methods_;
  bool isHeldUp_ = false;
};

SilentService::SilentService(const QString& name) : name_(name), object_(std::make_unique<Object>()) {
  auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name_);
  bus.registerVirtualObject("/", object_.get(), QDBusConnection::SubPath);
  object_->moveToThread(&object_->thread);
  object_->thread.start();
  if (!bus.registerService(name_)) qFatal("the service cannot be on the bus");
}

SilentService::~SilentService() {
  QDBusConnection::disconnectFromBus(name_);
  object_->end();
}

bool SilentService::isNotWaitedFor(const QString& method) {
  EXPECT_TRUE(QTest::qWaitFor([&] { return object_->wasCalled(method); }, BusClient::kPatience));
  return !object_->isHeldUp();
}

}  // namespace brimle
