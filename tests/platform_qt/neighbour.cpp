// How a neighbour on the bus asks, answers and waits.
#include "platform_qt/neighbour.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusVariant>
#include <utility>

#include "platform_qt/patience.h"

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
  const bool isArray = argument.currentType() == QDBusArgument::ArrayType;
  isArray ? argument.beginArray() : argument.beginStructure();
  QVariantList parts;
  while (!argument.atEnd()) parts.append(plain(argument.asVariant()));
  isArray ? argument.endArray() : argument.endStructure();
  return parts;
}

QString nextConnection() {
  static int number = 0;
  return QStringLiteral("neighbour %1").arg(++number);
}

}  // namespace

Neighbour::Neighbour(QString service)
    : service_(std::move(service)),
      connection_(nextConnection()),
      call_(QDBusPendingCall::fromError(QDBusError())) {
  bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connection_);
  bus_.registerVirtualObject("/", this, QDBusConnection::SubPath);
  for (const char* interface : {"org.kde.StatusNotifierItem", "com.canonical.dbusmenu"})
    bus_.connect({}, {}, interface, {}, this, SLOT(hear(QDBusMessage)));
}

Neighbour::~Neighbour() {
  QDBusConnection::disconnectFromBus(connection_);
}

void Neighbour::appear() {
  ASSERT_TRUE(bus_.registerService(service_));
}

void Neighbour::vanish() {
  bus_.unregisterService(service_);
}

QVariantList Neighbour::ask(const QString& path, const QString& interface, const QString& method,
                            const QVariantList& arguments) {
  const QDBusPendingCall& call = await(path, interface, method, arguments);
  EXPECT_FALSE(call.isError()) << method.toStdString() << ": " << call.error().message().toStdString();
  return plainArguments(call.reply());
}

bool Neighbour::isRefused(const QString& path, const QString& interface, const QString& method,
                          const QVariantList& arguments) {
  return await(path, interface, method, arguments).isError();
}

/// What the program puts off until it has answered is done, too.
const QDBusPendingCall& Neighbour::await(const QString& path, const QString& interface, const QString& method,
                                         const QVariantList& arguments) {
  const QString program = QDBusConnection::sessionBus().baseService();
  QDBusMessage message = QDBusMessage::createMethodCall(program, path, interface, method);
  message.setArguments(arguments);
  call_ = bus_.asyncCall(message);
  waitFor([this] { return hasAnswer(); });
  QCoreApplication::processEvents();
  return call_;
}

void Neighbour::tell(const QString& path, const QString& interface, const QString& signal,
                     const QVariantList& arguments) {
  QDBusMessage message = QDBusMessage::createSignal(path, interface, signal);
  message.setArguments(arguments);
  bus_.send(message);
}

void Neighbour::waitForCalls(std::size_t count) const {
  waitFor([&] { return calls.size() >= count; });
}

/// On each connection an answer of the bus comes after all that was sent there before. The first round brings
/// the program what was said here, the second what the program asked then, the third its answer.
void Neighbour::settle(const QDBusConnection& program) const {
  for (int round = 0; round < 3; ++round) {
    for (const QDBusConnection& bus : {bus_, program})
      if (bus.isConnected()) bus.interface()->isServiceRegistered("org.brimle.Nobody");
    QCoreApplication::processEvents();
  }
}

bool Neighbour::handleMessage(const QDBusMessage& call, const QDBusConnection&) {
  calls.push_back(call);
  answer(call);
  return true;
}

QVariantList plainArguments(const QDBusMessage& message) {
  QVariantList parts;
  for (const QVariant& part : message.arguments()) parts.append(plain(part));
  return parts;
}

}  // namespace brimle
