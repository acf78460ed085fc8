#include "platform/desktop/qt_status_item.h"

#include <QCursor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QMenu>
#include <QSystemTrayIcon>
#include <algorithm>
#include <array>

#include "platform/desktop/qt_status_icon.h"

namespace brimle {
namespace {

constexpr auto kService = "org.kde.StatusNotifierWatcher";
constexpr auto kPath = "/StatusNotifierWatcher";
constexpr auto kInterface = "org.kde.StatusNotifierWatcher";
constexpr auto kToken = "XDG_ACTIVATION_TOKEN";

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

/// An ampersand in a title is a letter, not a mnemonic.
QString plainTitle(const std::string& title) {
  return QString::fromStdString(title).replace('&', QLatin1String("&&"));
}

}  // namespace

QtStatusItem::QtStatusItem(QtSettingsPortal& settings, bool desktopLooksDark)
    : settings_(settings),
      desktopLooksDark_(desktopLooksDark),
      menu_(std::make_unique<QMenu>()),
      appearance_(settings.observe([this] { redraw(); })) {
  connect(menu_.get(), &QMenu::aboutToShow, this, &QtStatusItem::fillMenu);
}

QtStatusItem::~QtStatusItem() = default;

void QtStatusItem::install(Actions actions) {
  actions_ = std::move(actions);
  fillMenu();
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  // No signal is bound to the watcher's name: Qt would ask the bus who owns it, and wait.
  bus.connect({}, kPath, kInterface, "StatusNotifierHostRegistered", this, SLOT(lookForHost()));
  watcher_ = std::make_unique<QDBusServiceWatcher>(kService, bus, QDBusServiceWatcher::WatchForRegistration);
  connect(watcher_.get(), &QDBusServiceWatcher::serviceRegistered, this, &QtStatusItem::lookForHost);
  lookForHost();
}

void QtStatusItem::setTitle(const std::string& title, const std::string& tooltip) {
  count_ = QString::fromStdString(title).toLongLong();
  tooltip_ = QString::fromStdString(tooltip);
  if (!icon_) return;
  icon_->setToolTip(tooltip_);
  redraw();
}

/// Qt decides once, at the first tray icon, whether there is a status area, so none is made before there is.
void QtStatusItem::lookForHost() {
  if (icon_) return;
  QDBusMessage question = QDBusMessage::createMethodCall(
      kService, kPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
  question << kInterface << QStringLiteral("IsStatusNotifierHostRegistered");
  question.setAutoStartService(false);
  auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    answer->deleteLater();
    const QDBusPendingReply<QDBusVariant> registered = *answer;
    if (!icon_ && !registered.isError() && registered.value().variant().toBool()) appear();
  });
}

void QtStatusItem::appear() {
  icon_ = std::make_unique<QSystemTrayIcon>();
  connect(icon_.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
    if (reason == QSystemTrayIcon::Trigger) click();
    // Asked for by a panel that does not show the menu itself.
    if (reason == QSystemTrayIcon::Context) menu_->popup(QCursor::pos());
  });
  icon_->setContextMenu(menu_.get());
  icon_->setToolTip(tooltip_);
  redraw();
  icon_->show();
}

void QtStatusItem::redraw() {
  if (!icon_ || (drawnInk_ == ink() && drawnCount_ == count_)) return;
  drawnInk_ = ink();
  drawnCount_ = count_;
  icon_->setIcon(statusIcon(count_, drawnInk_));
}

QColor QtStatusItem::ink() const {
  const bool dark = hasDarkPanel(qEnvironmentVariable("XDG_CURRENT_DESKTOP")) ||
                    settings_.dark().value_or(desktopLooksDark_);
  return dark ? kLightInk : kDarkInk;
}

/// Qt leaves the token that the panel gave in the environment.
void QtStatusItem::click() {
  const std::string token = qgetenv(kToken).toStdString();
  qunsetenv(kToken);
  if (actions_.click) actions_.click(token);
}

/// The actions of the menu stay while the rows keep their kinds: a panel that shows the menu from a copy can
/// still name what was chosen.
void QtStatusItem::fillMenu() {
  std::vector<MenuEntry> rows = actions_.menu ? actions_.menu() : std::vector<MenuEntry>();
  const bool sameKinds =
      std::ranges::equal(rows, rows_, {}, &MenuEntry::isSeparator, &MenuEntry::isSeparator);
  rows_ = std::move(rows);
  if (!sameKinds) layOutMenu();
  const QList<QAction*> actions = menu_->actions();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (rows_[i].isSeparator()) continue;
    QAction* action = actions[static_cast<int>(i)];
    action->setText(plainTitle(rows_[i].title));
    action->setEnabled(rows_[i].action != nullptr);
    action->setCheckable(rows_[i].on.has_value());
    action->setChecked(rows_[i].on.value_or(false));
  }
}

void QtStatusItem::layOutMenu() {
  menu_->clear();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    QAction* action = rows_[i].isSeparator() ? menu_->addSeparator() : menu_->addAction(QString());
    connect(action, &QAction::triggered, this, [this, i] { choose(i); });
  }
}

void QtStatusItem::choose(std::size_t row) const {
  const auto action = rows_[row].action;  // a copy: what it does may fill the menu anew
  if (action) action();
}

}  // namespace brimle
