// The hot key by the desktop's GlobalShortcuts portal (org.freedesktop.portal.GlobalShortcuts): one session
// with one shortcut, bound to whatever key the desktop or its user chose.
//
// The desktop's user is asked at most once: what he answered is kept in the preferences, and after a portal
// came back the shortcut is only taken up again. No call on the bus is ever waited for; where there is no
// portal, or it makes no sense, no key is in force.
#pragma once

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariant>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "base/lifetime.h"
#include "platform/desktop/qt_dbus_values.h"
#include "platform/hot_key.h"
#include "platform/preferences_store.h"

class QDBusServiceWatcher;

namespace brimle {

/// A shortcut as the portal tells and takes it: its id and what is said of it.
struct PortalShortcut {
  QString id;
  QVariantMap details;
  auto fields() { return std::tie(id, details); }
};

class QtPortalShortcuts : public QObject, public HotKey {
  Q_OBJECT

 public:
  explicit QtPortalShortcuts(PreferencesStore& preferences);
  /// Leaves the bus, which ends the session.
  ~QtPortalShortcuts() override;

  void install(std::function<void(const std::string& token)> onPress) override;

 private slots:
  void responded(uint code, const QVariantMap& results, const QDBusMessage& signal);
  void activated(const QDBusObjectPath& session, const QString& id, qulonglong time,
                 const QVariantMap& options, const QDBusMessage& signal);
  void shortcutsChanged(const QDBusMessage& signal);
  void sessionClosed(const QDBusMessage& signal);

 private:
  /// Is given a response's code and results; where there is to be no response, another failure's code.
  using Responded = std::function<void(uint code, const QVariantMap& results)>;

  void meetBus();
  void listen();
  void ownerChanged(const QString& newOwner);
  void forgetSession();
  void registerProgram();
  void createSession();
  void listShortcuts();
  void bindShortcuts();
  bool takeShortcut(const std::vector<PortalShortcut>& shortcuts);
  bool mayBind() const;
  void remember(std::string_view answer);
  QString pathFor(const char* kind, const QString& token) const;
  void call(const QDBusMessage& message, std::function<void(const QDBusMessage& reply)> answered);
  void request(const char* method, QVariantList arguments, QVariantMap options, Responded done);

  PreferencesStore& preferences_;
  std::function<void(const std::string&)> onPress_;
  std::unique_ptr<QDBusServiceWatcher> portals_;
  Lifetime life_;     ///< of the portal that is asked: answers of an earlier one are void
  QString portal_;    ///< the unique name of the one that answers; empty while none is known
  QString session_;   ///< its path; empty while there is none
  int requests_ = 0;  ///< made so far
  QString pending_;   ///< the path of the request that waits for its response
  Responded done_;    ///< what waits for it
  bool isBound_ = false;
  bool hasAsked_ = false;
};

}  // namespace brimle
