#include "platform_qt/panel.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QTest>
#include <QtEndian>

namespace brimle {
namespace {

constexpr int kPatience = 60'000;  // milliseconds; only a broken machine needs them
constexpr auto kWatcher = "org.kde.StatusNotifierWatcher";
constexpr auto kWatcherPath = "/StatusNotifierWatcher";
constexpr auto kItem = "org.kde.StatusNotifierItem";
constexpr auto kItemPath = "/StatusNotifierItem";
constexpr auto kPortal = "org.freedesktop.portal.Desktop";

/// A value of the bus with its structures and arrays as lists.
QVariant plain(const QVariant& value) {
  if (value.metaType() == QMetaType::fromType<QDBusVariant>())
    return plain(value.value<QDBusVariant>().variant());
  if (value.metaType() != QMetaType::fromType<QDBusArgument>()) return value;
  const auto argument = value.value<QDBusArgument>();
  if (argument.currentType() == QDBusArgument::MapType) return qdbus_cast<QVariantMap>(argument);
  const bool isArray = argument.currentType() == QDBusArgument::ArrayType;
  isArray ? argument.beginArray() : argument.beginStructure();
  QVariantList parts;
  while (!argument.atEnd()) parts.append(plain(argument.asVariant()));
  isArray ? argument.endArray() : argument.endStructure();
  return parts;
}

std::string rowText(const QVariantMap& properties) {
  if (properties["type"] == "separator") return "-";
  const std::string label = properties["label"].toString().toStdString();
  if (!properties.value("enabled", true).toBool()) return "(" + label + ")";
  return properties["toggle-state"] == 1 ? "x " + label : label;
}

}  // namespace

Panel::Panel() : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "panel")) {
  connect(&watcher_, &Watcher::registered, this, [this](const QString& service) {
    item_ = service;
    ++registrations;
  });
  watcher_.moveToThread(&thread_);
  thread_.start();
  bus_.registerObject(kWatcherPath, &watcher_,
                      QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties);
  bus_.connect({}, kItemPath, kItem, "NewIcon", this, SLOT(iconChanged()));
}

Panel::~Panel() {
  QDBusConnection::disconnectFromBus("panel");
  thread_.quit();
  thread_.wait();
}

void Panel::start(bool withHost) {
  watcher_.hasHost = withHost;
  if (!bus_.registerService(kWatcher)) qFatal("the panel cannot be on the bus");
}

void Panel::stop() {
  bus_.unregisterService(kWatcher);
}

void Panel::gainHost() {
  watcher_.hasHost = true;
  bus_.send(QDBusMessage::createSignal(kWatcherPath, kWatcher, "StatusNotifierHostRegistered"));
}

void Panel::awaitRegistrations(int count) {
  ASSERT_TRUE(QTest::qWaitFor([&] { return registrations >= count; }, kPatience));
  EXPECT_EQ(registrations, count);
}

/// On each connection an answer of the bus comes after all that was sent there before. The first round brings
/// the program what the panel said, the second what the watcher answered to what the program asked then.
void Panel::settle() {
  for (int round = 0; round < 2; ++round) {
    const auto exchange = [this] {
      for (const QDBusConnection& bus : {QDBusConnection::sessionBus(), bus_, QDBusConnection::sessionBus()})
        bus.interface()->isServiceRegistered(kWatcher);
    };
    exchange();
    QMetaObject::invokeMethod(
        &watcher_, [] {}, Qt::BlockingQueuedConnection);
    exchange();
    QCoreApplication::processEvents();
  }
}

void Panel::prefer(uint colorScheme) {
  bus_.registerService(kPortal);
  settle();
  QDBusMessage signal = QDBusMessage::createSignal("/org/freedesktop/portal/desktop",
                                                   "org.freedesktop.portal.Settings", "SettingChanged");
  signal.setArguments(
      {"org.freedesktop.appearance", "color-scheme", QVariant::fromValue(QDBusVariant(colorScheme))});
  bus_.send(signal);
  settle();
}

QVariantList Panel::ask(const QString& path, const char* interface, const char* method,
                        const QVariantList& arguments) {
  QDBusMessage message = QDBusMessage::createMethodCall(item_, path, interface, method);
  message.setArguments(arguments);
  const QDBusPendingCall answer = bus_.asyncCall(message);
  EXPECT_TRUE(QTest::qWaitFor([&] { return answer.isFinished(); }, kPatience)) << method;
  EXPECT_FALSE(answer.isError()) << method << ": " << answer.error().message().toStdString();
  QVariantList parts;
  for (const QVariant& part : answer.reply().arguments()) parts.append(plain(part));
  return parts;
}

QVariant Panel::property(const char* name) {
  return ask(kItemPath, "org.freedesktop.DBus.Properties", "Get", {kItem, name}).value(0);
}

QImage Panel::icon(int side) {
  for (const QVariant& picture : property("IconPixmap").toList()) {
    const QVariantList parts = picture.toList();  // width, height, pixels
    const QByteArray pixels = parts[2].toByteArray();
    if (parts[0] != side || parts[1] != side || pixels.size() != 4 * side * side) continue;
    QImage image(side, side, QImage::Format_ARGB32);
    qFromBigEndian<quint32>(pixels.constData(), side * side, image.bits());
    return image;
  }
  return {};
}

std::string Panel::tooltip() {
  return property("ToolTip").toList().value(2).toString().toStdString();
}

void Panel::call(const char* method, const QVariantList& arguments) {
  ask(kItemPath, kItem, method, arguments);
}

QVariantList Panel::askMenu(const char* method, const QVariantList& arguments) {
  return ask(property("Menu").value<QDBusObjectPath>().path(), "com.canonical.dbusmenu", method, arguments);
}

void Panel::openMenu() {
  askMenu("AboutToShow", {0});
}

std::vector<std::string> Panel::menuRows() {
  const QVariantList menu = askMenu("GetLayout", {0, -1, QStringList()}).value(1).toList();
  std::vector<std::string> rows;
  rowIds_.clear();
  for (const QVariant& row : menu.value(2).toList()) {
    rowIds_.append(row.toList()[0]);
    rows.push_back(rowText(row.toList()[1].toMap()));
  }
  return rows;
}

void Panel::choose(int row) {
  askMenu("Event", {rowIds_.at(row), "clicked", QVariant::fromValue(QDBusVariant(0)), 0u});
}

}  // namespace brimle
