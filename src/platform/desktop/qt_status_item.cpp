#include "platform/desktop/qt_status_item.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <algorithm>
#include <array>
#include <utility>

#include "platform/desktop/qt_bus.h"
#include "platform/desktop/qt_dbus_menu.h"
#include "platform/desktop/qt_status_icon.h"
#include "platform/desktop/qt_status_notifier.h"

namespace brimle {
namespace {

constexpr auto kService = "org.kde.StatusNotifierWatcher";
constexpr auto kPath = "/StatusNotifierWatcher";
constexpr auto kInterface = "org.kde.StatusNotifierWatcher";
constexpr auto kMenuPath = "/org/brimle/Brimle/StatusMenu";

constexpr QRgb kDarkInk = qRgb(0x2b, 0x2b, 0x2b);
constexpr QRgb kLightInk = qRgb(0xf2, 0xf2, 0xf2);

/// Desktops whose panel is dark as a rule also where windows are light, by the name they give themselves
/// first.
constexpr std::array kDarkPanels{"GNOME", "ubuntu", "pop",  "Unity",   "X-Cinnamon",
                                 "XFCE",  "Budgie", "sway", "Hyprland"};

bool hasDarkPanel(const QString& desktopNames) {
  const QString name = desktopNames.section(':', 0, 0);
  return std::ranges::any_of(kDarkPanels, [&](const char* dark) { return name == QLatin1String(dark); });
}

}  // namespace

QtStatusItem::QtStatusItem(QtSettingsPortal& settings, bool desktopLooksDark, PopUp popUp)
    : settings_(settings),
      desktopLooksDark_(desktopLooksDark),
      popUp_(std::move(popUp)),
      appearance_(settings.observe([this] { redraw(); })) {}

QtStatusItem::~QtStatusItem() = default;

void QtStatusItem::install(Actions actions) {
  actions_ = std::move(actions);
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  menu_ = std::make_unique<QtDBusMenu>(kMenuPath, actions_.menu);
  notifier_ = std::make_unique<QtStatusNotifier>(
      kMenuPath, QtStatusNotifier::Reports{.click = actions_.click, .contextMenu = [this](QPoint place) {
                                             popUp_(actions_.menu(), place);
                                           }});
  notifier_->setToolTip(tooltip_);
  redraw();
  // No signal is bound to the watcher's name: Qt would ask the bus who owns it, and wait.
  bus.connect({}, kPath, kInterface, "StatusNotifierHostRegistered", this, SLOT(hostRegistered()));
  watchers_ = watchOwner(bus, kService, [this](const QString& newOwner) {
    isTaken_ = false;
    if (!newOwner.isEmpty()) offer();
  });
  offer();
}

void QtStatusItem::setTitle(const std::string& title, const std::string& tooltip) {
  count_ = QString::fromStdString(title).toLongLong();
  tooltip_ = QString::fromStdString(tooltip);
  if (!notifier_) return;
  notifier_->setToolTip(tooltip_);
  redraw();
}

/// By the path of the item, which watchers take for that of the caller. The other way, by the name of a
/// service, would need a name of our own on the bus besides, and a watcher that looks for it there.
void QtStatusItem::offer() {
  QDBusMessage message = QDBusMessage::createMethodCall(kService, kPath, kInterface,
                                                        QStringLiteral("RegisterStatusNotifierItem"));
  message << QtStatusNotifier::kPath;
  message.setAutoStartService(false);
  callWithoutWaiting(QDBusConnection::sessionBus(), message, this,
                     [this](const QDBusPendingCall& reply) { isTaken_ = !reply.isError(); });
}

/// Some watchers take no item before there is a panel to show it.
void QtStatusItem::hostRegistered() {
  if (!isTaken_) offer();
}

void QtStatusItem::redraw() {
  const bool isDrawn = drawnInk_ == ink() && drawnCount_ == count_;
  if (!notifier_ || isDrawn) return;
  drawnInk_ = ink();
  drawnCount_ = count_;
  notifier_->setIcon(statusPictures(count_, drawnInk_));
}

QColor QtStatusItem::ink() const {
  const bool dark = hasDarkPanel(qEnvironmentVariable("XDG_CURRENT_DESKTOP")) ||
                    settings_.dark().value_or(desktopLooksDark_);
  return dark ? kLightInk : kDarkInk;
}

}  // namespace brimle
