#include "platform/desktop/qt_notification_center.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <algorithm>

#include "platform/application_id.h"
#include "platform/desktop/qt_bus.h"

namespace brimle {
namespace {

constexpr auto kService = "org.freedesktop.Notifications";
constexpr auto kPath = "/org/freedesktop/Notifications";
constexpr auto kInterface = "org.freedesktop.Notifications";
constexpr auto kProgram = "Brimle";
/// The action that stands for a click on the notification itself.
constexpr auto kClick = "default";
constexpr int kServerDecides = -1;  ///< how long a notification stays

/// The arguments of Notify. The title is plain text to every server, the body only to one that reads no
/// markup in it.
QVariantList notifyArguments(const NotificationRequest& request, uint replacedId,
                             const QStringList& capabilities) {
  const QString body = QString::fromStdString(request.body);
  const QStringList actions{kClick, kProgram};
  const QVariantMap hints{{"desktop-entry", kApplicationId}, {"sound-name", "message-new-instant"}};
  return {kProgram,
          replacedId,
          kApplicationId,
          QString::fromStdString(request.title),
          capabilities.contains("body-markup") ? body.toHtmlEscaped() : body,
          capabilities.contains("actions") ? actions : QStringList(),
          hints,
          kServerDecides};
}

}  // namespace

QtNotificationCenter::QtNotificationCenter(Time& time, Files& files, const Path& stateFolder,
                                           std::function<void(const std::string& activationToken)> onClicked)
    : LocalNotificationCenter(time, files, stateFolder), onClicked_(std::move(onClicked)) {}

QtNotificationCenter::~QtNotificationCenter() = default;

void QtNotificationCenter::deliver(NotificationRequest request, std::function<void(bool shown)> done) {
  if (!listen()) return done(false);
  call("GetCapabilities", {}, [this, request = std::move(request), done](const QDBusPendingCall& answer) {
    const QDBusPendingReply<QStringList> capabilities = answer;
    if (capabilities.isError()) return done(false);
    notify(request, capabilities.value(), done);
  });
}

void QtNotificationCenter::notify(const NotificationRequest& request, const QStringList& capabilities,
                                  const std::function<void(bool shown)>& done) {
  const auto shown = ids_.find(request.identifier);
  const QVariantList arguments =
      notifyArguments(request, shown == ids_.end() ? 0 : shown->second, capabilities);
  call("Notify", arguments, [this, identifier = request.identifier, done](const QDBusPendingCall& answer) {
    const QDBusPendingReply<uint> id = answer;
    if (!id.isError()) ids_[identifier] = id.value();
    // A server that took the request and gave no answer may have shown it, or ended of it: no second try.
    done(!id.isError() || id.error().type() == QDBusError::NoReply);
  });
}

/// Meets the bus. False where there is none. No signal is bound to the server's name: Qt would ask the bus
/// who owns it, and wait.
bool QtNotificationCenter::listen() {
  if (server_) return true;
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return false;
  bus.connect({}, kPath, kInterface, "ActivationToken", this, SLOT(tokenGiven(uint, QString)));
  bus.connect({}, kPath, kInterface, "ActionInvoked", this, SLOT(actionInvoked(uint, QString)));
  server_ = watchOwner(bus, kService, [this](const QString& newOwner) { serverChanged(newOwner); });
  return true;
}

/// Another server counts its notifications anew: an old id would name somebody else's.
void QtNotificationCenter::serverChanged(const QString& newOwner) {
  ids_.clear();
  tokens_.clear();
  if (!newOwner.isEmpty()) retry();
}

/// The signals tell of everybody's notifications.
bool QtNotificationCenter::isOurs(uint id) const {
  return std::ranges::any_of(ids_, [id](const auto& shown) { return shown.second == id; });
}

void QtNotificationCenter::tokenGiven(uint id, const QString& token) {
  if (isOurs(id)) tokens_[id] = token.toUtf8();
}

void QtNotificationCenter::actionInvoked(uint id, const QString& action) {
  if (!isOurs(id)) return;
  const auto token = tokens_.extract(id);
  if (action == QLatin1String(kClick)) onClicked_(token ? token.mapped().toStdString() : std::string());
}

void QtNotificationCenter::call(const char* method, const QVariantList& arguments,
                                std::function<void(const QDBusPendingCall&)> answered) {
  QDBusMessage message = QDBusMessage::createMethodCall(kService, kPath, kInterface, method);
  message.setArguments(arguments);
  callWithoutWaiting(QDBusConnection::sessionBus(), message, this, std::move(answered));
}

}  // namespace brimle
