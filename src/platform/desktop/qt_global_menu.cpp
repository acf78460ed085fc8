#include "platform/desktop/qt_global_menu.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QGuiApplication>

#include "platform/desktop/qt_bus.h"

namespace brimle {
namespace {

constexpr auto kService = "com.canonical.AppMenu.Registrar";
constexpr auto kPath = "/com/canonical/AppMenu/Registrar";
constexpr auto kInterface = "com.canonical.AppMenu.Registrar";
constexpr auto kMenuPath = "/org/brimle/Brimle/MenuBar";

}  // namespace

QtGlobalMenu::QtGlobalMenu() : menu_(kMenuPath, [this] { return entries(); }) {
  const QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  registrars_ = watchOwner(bus, kService, [this](const QString& newOwner) {
    if (!newOwner.isEmpty()) offer();
  });
}

QtGlobalMenu::~QtGlobalMenu() = default;

void QtGlobalMenu::install(const MenuBar& bar) {
  bar_ = bar;
  menu_.setEntries(submenusOf(bar_));
}

void QtGlobalMenu::refreshMarks(const MenuBar& bar) {
  install(bar);
}

void QtGlobalMenu::setWindow(const QWindow& window) {
  if (QGuiApplication::platformName() != QLatin1String("xcb")) return;
  window_ = static_cast<quint32>(window.winId());
  offer();
}

std::vector<MenuEntry> QtGlobalMenu::entries() {
  tellThatMenusOpen(bar_);
  return submenusOf(bar_);
}

/// A registrar that is not there yet is no fault: it is offered the menus when it comes.
void QtGlobalMenu::offer() {
  if (window_ == 0) return;
  QDBusMessage message =
      QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("RegisterWindow"));
  message << window_ << QVariant::fromValue(QDBusObjectPath(kMenuPath));
  message.setAutoStartService(false);
  QDBusConnection::sessionBus().send(message);
}

}  // namespace brimle
