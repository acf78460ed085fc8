// A GlobalShortcuts portal on the session bus, on a connection of its own, with the manners a test gives it.
#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <map>
#include <optional>
#include <string>

#include "platform/desktop/qt_portal_shortcuts.h"

namespace brimle {

/// What a request ends with; it fails at once where there is nothing.
struct Answer {
  uint code = 0;
  QVariantMap results;
};

class MockPortal : public QDBusVirtualObject {
 public:
  static constexpr uint kNever = 99;  ///< the code of an answer that never comes

  /// By method. A method that is not here succeeds as a desktop's own would.
  std::map<std::string, std::optional<Answer>> manners;
  bool keepsShortcuts = false;  ///< whether what was bound is listed in later sessions

  std::string calls;  ///< the first letters of the methods, with a blank before each life of the portal
  std::string asked;  ///< what the program said of itself and its shortcut
  QString client;     ///< the program's name on the bus
  QString session;    ///< the path of the last session
  int reported = 0;   ///< presses: one after each answer that could bind the shortcut

  ~MockPortal() override { vanish(); }

  void appear();
  void vanish();
  /// Returns when all that was sent to the portal has arrived.
  void settle();
  void press(const QString& sessionPath, const QString& id, const QVariantMap& options = {});
  void tell(const QString& path, const char* interface, const char* signal, const QVariantList& arguments);
  static QVariant listOf(const QString& id, const QString& trigger);

  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;
  QString introspect(const QString&) const override { return {}; }

 private:
  QVariantMap usualResults(const std::string& method) const;
  void noteShortcut(const QDBusMessage& message);

  QDBusConnection bus_{QString()};
  bool hasBound_ = false;
};

}  // namespace brimle
