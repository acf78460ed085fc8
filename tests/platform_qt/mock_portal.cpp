#include "platform_qt/mock_portal.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace brimle {
namespace {

const auto kBus = QStringLiteral("mock-portal");
constexpr auto kName = "org.freedesktop.portal.Desktop";
constexpr auto kPath = "/org/freedesktop/portal/desktop";
constexpr auto kShortcuts = "org.freedesktop.portal.GlobalShortcuts";

QString pathFor(const char* kind, QString client, const QVariant& token) {
  return QStringLiteral("%1/%2/%3/%4")
      .arg(kPath, kind, client.remove(':').replace('.', '_'), token.toString());
}

}  // namespace

void MockPortal::appear() {
  calls += calls.empty() ? "" : " ";
  bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, kBus);
  if (!bus_.registerVirtualObject(kPath, this, QDBusConnection::SubPath) || !bus_.registerService(kName))
    qFatal("the portal cannot be on the bus");
}

void MockPortal::vanish() {
  bus_ = QDBusConnection(QString());
  QDBusConnection::disconnectFromBus(kBus);
}

/// The bus reads from all before it reads from one again.
void MockPortal::settle() {
  for (int round = 0; round < 2; ++round) bus_.interface()->isServiceRegistered(kName);
  QCoreApplication::processEvents();
}

void MockPortal::tell(const QString& path, const char* interface, const char* signal,
                      const QVariantList& arguments) {
  QDBusMessage message = QDBusMessage::createTargetedSignal(client, path, interface, signal);
  message.setArguments(arguments);
  bus_.send(message);
}

void MockPortal::press(const QString& sessionPath, const QString& id, const QVariantMap& options) {
  const QVariant path = QVariant::fromValue(QDBusObjectPath(sessionPath));
  tell(kPath, kShortcuts, "Activated", {path, id, qulonglong(1), options});
}

QVariant MockPortal::listOf(const QString& id, const QString& trigger) {
  return QVariant::fromValue(std::vector<PortalShortcut>{{id, {{"trigger_description", trigger}}}});
}

bool MockPortal::handleMessage(const QDBusMessage& message, const QDBusConnection& bus) {
  const std::string method = message.member().toStdString();
  client = message.service();
  calls += method[0];
  if (method == "Register") asked = message.arguments().value(0).toString().toStdString();
  if (method == "BindShortcuts") noteShortcut(message);
  const auto manner = manners.find(method);
  if (method == "Register" || (manner != manners.end() && !manner->second))
    return bus.send(message.createErrorReply(QDBusError::UnknownMethod, "none"));

  const auto options = qdbus_cast<QVariantMap>(message.arguments().last());
  const QString request = pathFor("request", client, options["handle_token"]);
  bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
  if (method == "CreateSession") session = pathFor("session", client, options["session_handle_token"]);
  const Answer answer = manner == manners.end() ? Answer{0, usualResults(method)} : *manner->second;
  hasBound_ = hasBound_ || (method == "BindShortcuts" && answer.code == 0);
  if (answer.code != kNever)
    tell(request, "org.freedesktop.portal.Request", "Response", {answer.code, answer.results});
  if (method == "CreateSession") return true;
  press(session, "new-task");
  ++reported;
  return true;
}

QVariantMap MockPortal::usualResults(const std::string& method) const {
  if (method == "CreateSession") return {{"session_handle", session}};
  const bool isBound = method == "BindShortcuts" || (keepsShortcuts && hasBound_);
  return {{"shortcuts", isBound ? listOf("new-task", "Press Ctrl+Alt+T") : listOf("other", "F1")}};
}

void MockPortal::noteShortcut(const QDBusMessage& message) {
  const auto list = message.arguments().value(1).value<QDBusArgument>();
  QString id;
  QVariantMap details;
  list.beginArray();
  list.beginStructure();
  list >> id >> details;
  asked += ' ' + id.toStdString();
  for (const QVariant& detail : details) asked += '|' + detail.toString().toStdString();
}

}  // namespace brimle
