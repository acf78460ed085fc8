#include "platform_qt/panel.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QTest>
#include <QtEndian>

namespace brimle {
namespace {

constexpr auto kWatcher = "org.kde.StatusNotifierWatcher";
constexpr auto kWatcherPath = "/StatusNotifierWatcher";
constexpr auto kItem = "org.kde.StatusNotifierItem";
constexpr auto kPortal = "org.freedesktop.portal.Desktop";

}  // namespace

Panel::Panel() {
  QDBusConnection& bus = client_.bus();
  bus.registerObject(kWatcherPath, this, QDBusConnection::ExportAllSlots);
  bus.connect({}, {}, kItem, "NewIcon", this, SLOT(iconChanged()));
  bus.connect({}, {}, kItem, "NewToolTip", this, SLOT(toolTipChanged()));
}

void Panel::start(bool withHost) {
  hasHost_ = withHost;
  if (!client_.bus().registerService(kWatcher)) qFatal("the panel cannot be on the bus");
}

void Panel::stop() {
  client_.bus().unregisterService(kWatcher);
}

void Panel::gainHost() {
  hasHost_ = true;
  client_.bus().send(QDBusMessage::createSignal(kWatcherPath, kWatcher, "StatusNotifierHostRegistered"));
}

void Panel::RegisterStatusNotifierItem(const QString& path) {
  if (!hasHost_) return sendErrorReply(QDBusError::Failed, "no host");
  service_ = message().service();
  path_ = path;
  ++registrations;
}

void Panel::awaitRegistrations(int count) {
  ASSERT_TRUE(QTest::qWaitFor([&] { return registrations >= count; }, BusClient::kPatience));
  settle();
  EXPECT_EQ(registrations, count);
}

/// On each connection an answer of the bus comes after all that was sent there before. The first round brings
/// the program what the panel said, the second the panel what the program asked then, the third its answer.
void Panel::settle() {
  for (int round = 0; round < 3; ++round) {
    for (const QDBusConnection& bus : {QDBusConnection::sessionBus(), client_.bus()})
      bus.interface()->isServiceRegistered(kWatcher);
    QCoreApplication::processEvents();
  }
}

void Panel::prefer(uint colorScheme) {
  client_.bus().registerService(kPortal);
  settle();
  QDBusMessage signal = QDBusMessage::createSignal("/org/freedesktop/portal/desktop",
                                                   "org.freedesktop.portal.Settings", "SettingChanged");
  signal.setArguments(
      {"org.freedesktop.appearance", "color-scheme", QVariant::fromValue(QDBusVariant(colorScheme))});
  client_.bus().send(signal);
  settle();
}

QVariant Panel::property(const QString& name) {
  return client_.ask(service_, path_, "org.freedesktop.DBus.Properties", "Get", {kItem, name}).value(0);
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

void Panel::call(const QString& method, const QVariantList& arguments) {
  client_.ask(service_, path_, kItem, method, arguments);
}

bool Panel::isRefused(const QString& method, const QVariantList& arguments) {
  return client_.isRefused(service_, path_, kItem, method, arguments);
}

MenuClient& Panel::menu() {
  menu_.service = service_;
  menu_.path = property("Menu").value<QDBusObjectPath>().path();
  return menu_;
}

}  // namespace brimle
