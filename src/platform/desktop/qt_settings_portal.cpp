#include "platform/desktop/qt_settings_portal.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <algorithm>

#include "platform/desktop/qt_bus.h"

using Groups = QMap<QString, QVariantMap>;
Q_DECLARE_METATYPE(Groups)

namespace brimle {
namespace {

constexpr auto kService = "org.freedesktop.portal.Desktop";
constexpr auto kPath = "/org/freedesktop/portal/desktop";
constexpr auto kInterface = "org.freedesktop.portal.Settings";

// Where the settings are (the portal's documentation; the last two are the desktops' own).
constexpr auto kAppearance = "org.freedesktop.appearance";
constexpr auto kGnome = "org.gnome.desktop.interface";
constexpr auto kKde = "org.kde.kdeglobals.KDE";

/// Values may come wrapped in a variant once more.
QVariant unwrapped(QVariant value) {
  while (value.metaType() == QMetaType::fromType<QDBusVariant>())
    value = value.value<QDBusVariant>().variant();
  return value;
}

}  // namespace

QtSettingsPortal::QtSettingsPortal() {
  qDBusRegisterMetaType<Groups>();
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  // Not bound to the portal's name: Qt would ask the bus who owns it, and wait. Who sent a signal is looked
  // at when it comes.
  bus.connect({}, kPath, kInterface, QStringLiteral("SettingChanged"), this,
              SLOT(settingChanged(QDBusMessage)));
  portals_ = watchOwner(bus, kService, [this](const QString& newOwner) {
    if (!newOwner.isEmpty()) readAll();
  });
  readAll();
}

QtSettingsPortal::~QtSettingsPortal() = default;

void QtSettingsPortal::readAll() {
  QDBusMessage request =
      QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("ReadAll"));
  request << QStringList{kAppearance, kGnome, kKde};
  callWithoutWaiting(QDBusConnection::sessionBus(), request, this, [this](const QDBusPendingCall& call) {
    const QDBusPendingReply<Groups> reply = call;
    portal_ = reply.reply().service();
    if (reply.isError()) return;
    const Groups groups = reply.value();
    for (auto group = groups.begin(); group != groups.end(); ++group) {
      for (auto entry = group->begin(); entry != group->end(); ++entry) {
        values_[{group.key(), entry.key()}] = unwrapped(entry.value());
      }
    }
    changed_.notify();
  });
}

void QtSettingsPortal::settingChanged(const QDBusMessage& signal) {
  if (signal.service() != portal_) return;
  const QVariantList arguments = signal.arguments();
  if (arguments.size() != 3) return;
  values_[{arguments[0].toString(), arguments[1].toString()}] = unwrapped(arguments[2]);
  changed_.notify();
}

QVariant QtSettingsPortal::value(const char* group, const char* key) const {
  const auto found = values_.find({QLatin1String(group), QLatin1String(key)});
  return found == values_.end() ? QVariant() : found->second;
}

std::optional<bool> QtSettingsPortal::dark() const {
  switch (value(kAppearance, "color-scheme").toUInt()) {
    case 1: return true;
    case 2: return false;
    default: return std::nullopt;
  }
}

bool QtSettingsPortal::highContrast() const {
  return value(kAppearance, "contrast").toUInt() == 1;
}

bool QtSettingsPortal::reduceMotion() const {
  const QVariant portal = value(kAppearance, "reduced-motion");
  if (portal.isValid()) return portal.toUInt() == 1;
  const QVariant gnome = value(kGnome, "enable-animations");
  if (gnome.typeId() == QMetaType::Bool) return !gnome.toBool();
  bool isNumber = false;
  const double factor = value(kKde, "AnimationDurationFactor").toDouble(&isNumber);
  return isNumber && factor == 0;
}

double QtSettingsPortal::textScale() const {
  const double scale = value(kGnome, "text-scaling-factor").toDouble();
  return scale > 0 ? std::clamp(scale, 0.5, 3.0) : 1;
}

}  // namespace brimle
