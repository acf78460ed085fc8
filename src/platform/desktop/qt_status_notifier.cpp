#include "platform/desktop/qt_status_notifier.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QGuiApplication>
#include <QScreen>
#include <QtEndian>
#include <utility>

namespace brimle {
namespace {

/// The bus has the pixels in the order of the network.
DBusPicture toBus(const QImage& picture) {
  const QImage image = picture.convertToFormat(QImage::Format_ARGB32);
  DBusPicture onBus{image.width(), image.height(), QByteArray(image.sizeInBytes(), Qt::Uninitialized)};
  qToBigEndian<quint32>(image.constBits(), image.sizeInBytes() / 4, onBus.pixels.data());
  return onBus;
}

/// Panels count the pixels that the screen has, Qt those that its scale leaves.
QPoint toQt(QPoint place) {
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QPoint corner = screen->geometry().topLeft();
    const double scale = screen->devicePixelRatio();
    const QRect pixels(corner, screen->geometry().size() * scale);
    if (pixels.contains(place)) return corner + (place - corner) / scale;
  }
  return place;
}

}  // namespace

const QString QtStatusNotifier::kPath = QStringLiteral("/StatusNotifierItem");

QtStatusNotifier::QtStatusNotifier(const QString& menuPath, Reports reports)
    : menuPath_(menuPath), reports_(std::move(reports)) {
  qDBusRegisterMetaType<DBusPicture>();
  qDBusRegisterMetaType<QList<DBusPicture>>();
  qDBusRegisterMetaType<DBusToolTip>();
  QDBusConnection::sessionBus().registerObject(kPath, this,
                                               QDBusConnection::ExportAllSlots |
                                                   QDBusConnection::ExportAllProperties |
                                                   QDBusConnection::ExportAllSignals);
}

QtStatusNotifier::~QtStatusNotifier() {
  QDBusConnection::sessionBus().unregisterObject(kPath);
}

void QtStatusNotifier::setIcon(const std::vector<QImage>& pictures) {
  icon_.clear();
  for (const QImage& picture : pictures) icon_.append(toBus(picture));
  emit NewIcon();
}

void QtStatusNotifier::setToolTip(const QString& text) {
  if (toolTip_.title == text) return;
  toolTip_.title = text;
  emit NewToolTip();
}

QString QtStatusNotifier::title() const {
  return QCoreApplication::applicationName();
}

void QtStatusNotifier::ProvideXdgActivationToken(const QString& token) {
  token_ = token.toStdString();
}

void QtStatusNotifier::Activate(int, int) {
  later([this, token = std::exchange(token_, {})] { reports_.click(token); });
}

void QtStatusNotifier::ContextMenu(int x, int y) {
  later([this, place = toQt(QPoint(x, y))] { reports_.contextMenu(place); });
}

void QtStatusNotifier::later(std::function<void()> report) {
  QMetaObject::invokeMethod(this, std::move(report), Qt::QueuedConnection);
}

}  // namespace brimle
