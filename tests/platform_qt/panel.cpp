#include "platform_qt/panel.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QTest>

namespace brimle {
namespace {

constexpr auto kWatcher = "org.kde.StatusNotifierWatcher";
constexpr auto kWatcherPath = "/StatusNotifierWatcher";
constexpr auto kItem = "org.kde.StatusNotifierItem";
constexpr auto kItemPath = "/StatusNotifierItem";
constexpr auto kMenu = "com.canonical.dbusmenu";
constexpr auto kProperties = "org.freedesktop.DBus.Properties";
constexpr auto kPortal = "org.freedesktop.portal.Desktop";

QImage imageOf(int width, int height, const QByteArray& bigEndian) {
  QImage image(width, height, QImage::Format_ARGB32);
  for (int i = 0; i < width * height; ++i) {
    const auto byte = [&](int n) { return static_cast<uchar>(bigEndian[4 * i + n]); };
    image.setPixel(i % width, i / width, qRgba(byte(1), byte(2), byte(3), byte(0)));
  }
  return image;
}

PanelRow rowOf(const QDBusArgument& argument) {
  PanelRow row;
  QVariantMap properties;
  argument.beginStructure();
  argument >> row.id >> properties;
  argument.beginArray();  // the rows of a submenu
  argument.endArray();
  argument.endStructure();
  if (properties["type"] != "separator") row.label = properties["label"].toString().toStdString();
  row.enabled = properties.value("enabled", true).toBool();
  if (!properties["toggle-type"].toString().isEmpty()) row.checked = properties["toggle-state"].toInt();
  return row;
}

}  // namespace

Panel::Panel() : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "panel")) {
  connect(&watcher_, &Watcher::registered, this, &Panel::noteRegistered);
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
  watcher_.setHost(withHost);
  if (!bus_.registerService(kWatcher)) qFatal("the panel cannot be on the bus");
}

void Panel::stop() {
  bus_.unregisterService(kWatcher);
}

void Panel::gainHost() {
  watcher_.setHost(true);
  bus_.send(QDBusMessage::createSignal(kWatcherPath, kWatcher, "StatusNotifierHostRegistered"));
}

void Panel::noteRegistered(const QString& service) {
  item = service;
  ++registrations;
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
  signal << "org.freedesktop.appearance"
         << "color-scheme" << QVariant::fromValue(QDBusVariant(colorScheme));
  bus_.send(signal);
  settle();
}

QVariantList Panel::ask(const QString& path, const char* interface, const char* method,
                        const QVariantList& arguments) {
  QDBusMessage message = QDBusMessage::createMethodCall(item, path, interface, method);
  message.setArguments(arguments);
  const QDBusPendingCall answer = bus_.asyncCall(message);
  EXPECT_TRUE(QTest::qWaitFor([&] { return answer.isFinished(); }, kPatience)) << method;
  EXPECT_FALSE(answer.isError()) << method << ": " << answer.error().message().toStdString();
  return answer.reply().arguments();
}

QVariant Panel::property(const char* name) {
  return ask(kItemPath, kProperties, "Get", {kItem, name}).value(0).value<QDBusVariant>().variant();
}

void Panel::call(const char* method, const QVariantList& arguments) {
  ask(kItemPath, kItem, method, arguments);
}

QImage Panel::icon(int side) {
  QImage found;
  const auto pictures = property("IconPixmap").value<QDBusArgument>();
  pictures.beginArray();
  while (!pictures.atEnd()) {
    int width = 0, height = 0;
    QByteArray bytes;
    pictures.beginStructure();
    pictures >> width >> height >> bytes;
    pictures.endStructure();
    if (width == side && bytes.size() == 4 * width * height) found = imageOf(width, height, bytes);
  }
  pictures.endArray();
  return found;
}

std::string Panel::tooltip() {
  const auto tooltip = property("ToolTip").value<QDBusArgument>();
  QString iconName, title, text;
  tooltip.beginStructure();
  tooltip >> iconName;
  tooltip.beginArray();  // its pictures
  while (!tooltip.atEnd()) {
    int side = 0;
    QByteArray bytes;
    tooltip.beginStructure();
    tooltip >> side >> side >> bytes;
    tooltip.endStructure();
  }
  tooltip.endArray();
  tooltip >> title >> text;
  tooltip.endStructure();
  return title.toStdString();
}

QVariantList Panel::askMenu(const char* method, const QVariantList& arguments) {
  return ask(property("Menu").value<QDBusObjectPath>().path(), kMenu, method, arguments);
}

std::vector<PanelRow> Panel::menuRows(bool willOpen) {
  if (willOpen) askMenu("AboutToShow", {0});
  const auto layout = askMenu("GetLayout", {0, -1, QStringList()}).value(1).value<QDBusArgument>();
  int id = 0;
  QVariantMap properties;
  std::vector<PanelRow> rows;
  layout.beginStructure();
  layout >> id >> properties;
  layout.beginArray();
  while (!layout.atEnd()) {
    QDBusVariant row;
    layout >> row;
    rows.push_back(rowOf(row.variant().value<QDBusArgument>()));
  }
  layout.endArray();
  layout.endStructure();
  return rows;
}

void Panel::choose(int row) {
  askMenu("Event", {row, "clicked", QVariant::fromValue(QDBusVariant(0)), 0u});
}

}  // namespace brimle
