#include "platform/desktop/qt_portal_shortcuts.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QThread>
#include <algorithm>
#include <optional>
#include <utility>

#include "i18n/i18n.h"
#include "platform/application_id.h"
#include "platform/desktop/qt_bus.h"

namespace brimle {

using PortalShortcuts = std::vector<PortalShortcut>;

namespace {

/// A connection of our own: the program's name must be told the portal before any other call comes from it.
const auto kBus = QStringLiteral("brimle-shortcuts");
constexpr auto kService = "org.freedesktop.portal.Desktop";
constexpr auto kPath = "/org/freedesktop/portal/desktop";
constexpr auto kInterface = "org.freedesktop.portal.GlobalShortcuts";

constexpr auto kShortcut = "new-task";
constexpr auto kTrigger = "CTRL+ALT+t";  // of the shortcuts specification
/// Always the same, for some portals know a session again by it.
const auto kSessionToken = QStringLiteral("brimle");

// What a request may end with (org.freedesktop.portal.Request).
constexpr uint kSuccess = 0, kCancelledByUser = 1, kOtherFailure = 2;

constexpr std::string_view kAnswerKey = "globalShortcut";
constexpr std::string_view kAllowed = "allowed", kRefused = "refused";

/// Nothing where it is no list of shortcuts.
std::optional<PortalShortcuts> shortcutsIn(const QVariant& value) {
  if (value.metaType() != QMetaType::fromType<QDBusArgument>()) return std::nullopt;
  const auto argument = value.value<QDBusArgument>();
  if (argument.currentSignature() != QLatin1String("a(sa{sv})")) return std::nullopt;
  return qdbus_cast<PortalShortcuts>(argument);
}

/// Empty where there is no text under the key.
std::string textIn(const QVariantMap& map, const char* key) {
  const QVariant value = map.value(QLatin1String(key));
  return value.typeId() == QMetaType::QString ? value.toString().toStdString() : std::string();
}

}  // namespace

QtPortalShortcuts::QtPortalShortcuts(PreferencesStore& preferences) : preferences_(preferences) {
  qDBusRegisterMetaType<PortalShortcut>();
  qDBusRegisterMetaType<PortalShortcuts>();
}

QtPortalShortcuts::~QtPortalShortcuts() {
  QDBusConnection::disconnectFromBus(kBus);
}

void QtPortalShortcuts::install(std::function<void(const std::string& token)> onPress) {
  onPress_ = std::move(onPress);
  meetBus();
}

/// On a thread of its own, for meeting a bus is waiting until it answers, half a minute where it hangs.
void QtPortalShortcuts::meetBus() {
  QThread* meeting =
      QThread::create([] { QDBusConnection::connectToBus(QDBusConnection::SessionBus, kBus); });
  connect(meeting, &QThread::finished, this, &QtPortalShortcuts::listen);
  connect(meeting, &QThread::finished, meeting, &QThread::deleteLater);
  meeting->start();
}

/// No signal is bound to the portal's name: Qt would ask the bus who owns it, and wait. Who sent a signal is
/// looked at when it comes.
void QtPortalShortcuts::listen() {
  QDBusConnection bus(kBus);
  if (!bus.isConnected()) return;
  bus.connect({}, {}, "org.freedesktop.portal.Request", "Response", this,
              SLOT(responded(uint, QVariantMap, QDBusMessage)));
  bus.connect({}, {}, "org.freedesktop.portal.Session", "Closed", this, SLOT(sessionClosed(QDBusMessage)));
  bus.connect({}, kPath, kInterface, "Activated", this,
              SLOT(activated(QDBusObjectPath, QString, qulonglong, QVariantMap, QDBusMessage)));
  bus.connect({}, kPath, kInterface, "ShortcutsChanged", this, SLOT(shortcutsChanged(QDBusMessage)));
  portals_ = watchOwner(bus, kService, [this](const QString& newOwner) { ownerChanged(newOwner); });
  registerProgram();
}

void QtPortalShortcuts::ownerChanged(const QString& newOwner) {
  life_.renew();
  forgetSession();
  if (!newOwner.isEmpty()) registerProgram();
}

void QtPortalShortcuts::forgetSession() {
  portal_.clear();
  session_.clear();
  pending_.clear();
  done_ = {};
  isBound_ = false;
  setKeyInForce({});
}

/// By this name the desktop shows the program to its user and knows it again. A portal that asks for no name
/// answers with an error, and is as good; one that is not there yet may be started by the call.
void QtPortalShortcuts::registerProgram() {
  QDBusMessage message = QDBusMessage::createMethodCall(
      kService, kPath, QStringLiteral("org.freedesktop.host.portal.Registry"), QStringLiteral("Register"));
  message << QString::fromLatin1(kApplicationId) << QVariantMap();
  call(message, [this](const QDBusMessage& reply) {
    const bool isFromPortal = reply.service().startsWith(QLatin1Char(':'));
    if (!isFromPortal) return;
    portal_ = reply.service();
    createSession();
  });
}

void QtPortalShortcuts::createSession() {
  request("CreateSession", {}, {{"session_handle_token", kSessionToken}},
          [this](uint code, const QVariantMap& results) {
            const QString path = pathFor("session", kSessionToken);
            if (code != kSuccess || textIn(results, "session_handle") != path.toStdString()) return;
            session_ = path;
            listShortcuts();
          });
}

/// A desktop may have kept the shortcut from an earlier session; only where it has not is it bound.
void QtPortalShortcuts::listShortcuts() {
  request("ListShortcuts", {QVariant::fromValue(QDBusObjectPath(session_))}, {},
          [this](uint code, const QVariantMap& results) {
            const auto shortcuts = shortcutsIn(results.value(QStringLiteral("shortcuts")));
            if (code == kSuccess && shortcuts && takeShortcut(*shortcuts)) return;
            if (mayBind()) bindShortcuts();
          });
}

/// Once a session, as the portal asks. One that answers with success alone is asked what is bound.
void QtPortalShortcuts::bindShortcuts() {
  isBound_ = true;
  hasAsked_ = true;
  const PortalShortcuts wanted{{kShortcut,
                                {{"description", QString::fromStdString(I18n::t("New Task"))},
                                 {"preferred_trigger", QString::fromLatin1(kTrigger)}}}};
  const QString noParentWindow;
  request("BindShortcuts",
          {QVariant::fromValue(QDBusObjectPath(session_)), QVariant::fromValue(wanted), noParentWindow}, {},
          [this](uint code, const QVariantMap& results) {
            const auto bound = results.find(QStringLiteral("shortcuts"));
            if (code == kSuccess && bound == results.end()) return listShortcuts();
            const auto shortcuts = code == kSuccess ? shortcutsIn(*bound) : std::nullopt;
            const bool isNone = shortcuts && !takeShortcut(*shortcuts);
            if (isNone || code == kCancelledByUser) remember(kRefused);
          });
}

/// Where the desktop's user allowed it, binding again asks nobody: each session needs it on some desktops. An
/// open question is not asked anew before the next start.
bool QtPortalShortcuts::mayBind() const {
  if (isBound_) return false;
  const auto answer = preferences_.string(kAnswerKey);
  return answer == kAllowed || (answer != kRefused && !hasAsked_);
}

void QtPortalShortcuts::remember(std::string_view answer) {
  if (preferences_.string(kAnswerKey) != answer) preferences_.setString(kAnswerKey, answer);
}

/// False where ours is not among them.
bool QtPortalShortcuts::takeShortcut(const PortalShortcuts& shortcuts) {
  const auto ours = std::ranges::find(shortcuts, QLatin1String(kShortcut), &PortalShortcut::id);
  if (ours == shortcuts.end()) return false;
  remember(kAllowed);
  setKeyInForce(textIn(ours->details, "trigger_description"));
  return true;
}

void QtPortalShortcuts::activated(const QDBusObjectPath& session, const QString& id, qulonglong,
                                  const QVariantMap& options, const QDBusMessage& signal) {
  if (session_.isEmpty() || signal.service() != portal_ || session.path() != session_) return;
  if (id == QLatin1String(kShortcut)) onPress_(textIn(options, "activation_token"));
}

void QtPortalShortcuts::shortcutsChanged(const QDBusMessage& signal) {
  const QVariantList arguments = signal.arguments();
  if (session_.isEmpty() || signal.service() != portal_ || arguments.size() != 2) return;
  if (arguments[0].value<QDBusObjectPath>().path() != session_) return;
  const auto shortcuts = shortcutsIn(arguments[1]);
  if (shortcuts && !takeShortcut(*shortcuts)) setKeyInForce({});
}

/// The portal took the session away. Another is made with another portal.
void QtPortalShortcuts::sessionClosed(const QDBusMessage& signal) {
  if (!session_.isEmpty() && signal.service() == portal_ && signal.path() == session_) forgetSession();
}

/// Where the portal puts a request or session of ours (org.freedesktop.portal.Request, ...Session).
QString QtPortalShortcuts::pathFor(const char* kind, const QString& token) const {
  const QString sender =
      QDBusConnection(kBus).baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
  return QStringLiteral("%1/%2/%3/%4").arg(QLatin1String(kPath), QLatin1String(kind), sender, token);
}

/// `answered` is given the reply, be it an error, unless the portal has gone by then.
void QtPortalShortcuts::call(const QDBusMessage& message,
                             std::function<void(const QDBusMessage& reply)> answered) {
  callWithoutWaiting(QDBusConnection(kBus), message, this,
                     life_.guard([answered = std::move(answered)](const QDBusPendingCall& call) {
                       answered(call.reply());
                     }));
}

/// A call whose result comes as a signal later, after the desktop's user has made up his mind.
void QtPortalShortcuts::request(const char* method, QVariantList arguments, QVariantMap options,
                                Responded done) {
  const QString token = QStringLiteral("brimle%1").arg(++requests_);
  const QString path = pending_ = pathFor("request", token);
  done_ = std::move(done);
  options.insert(QStringLiteral("handle_token"), token);
  QDBusMessage message = QDBusMessage::createMethodCall(kService, kPath, kInterface, method);
  message.setArguments(arguments << options);
  call(message, [this, path](const QDBusMessage& reply) {
    if (reply.type() != QDBusMessage::ErrorMessage || pending_ != path) return;
    pending_.clear();
    std::exchange(done_, {})(kOtherFailure, {});
  });
}

void QtPortalShortcuts::responded(uint code, const QVariantMap& results, const QDBusMessage& signal) {
  if (pending_.isEmpty() || signal.service() != portal_ || signal.path() != pending_) return;
  pending_.clear();
  std::exchange(done_, {})(code, results);
}

}  // namespace brimle
