// Local notifications on the desktop: pending requests are shown by whoever owns
// org.freedesktop.Notifications on the session bus (Desktop Notifications Specification 1.2).
//
// The bus is met at the first delivery, and no call on it is ever waited for. What a request says is plain
// text to the server, whatever it looks like.
#pragma once

#include <QByteArray>
#include <QDBusPendingCall>
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <map>
#include <memory>

#include "platform/local_notification_center.h"

class QDBusServiceWatcher;

namespace brimle {

class QtNotificationCenter : public QObject, public LocalNotificationCenter {
  Q_OBJECT

 public:
  /// `onClicked` is called when the user clicks a notification, with the activation token that the server
  /// gave for it; empty where it gave none.
  QtNotificationCenter(Time& time, Files& files, const Path& stateFolder,
                       std::function<void(const std::string& activationToken)> onClicked);
  ~QtNotificationCenter() override;

 protected:
  void deliver(NotificationRequest request, std::function<void(bool shown)> done) override;

 private slots:
  void tokenGiven(uint id, const QString& token);
  void actionInvoked(uint id, const QString& action);

 private:
  bool listen();
  bool isOurs(uint id) const;
  void serverChanged(const QString& newOwner);
  void call(const char* method, const QVariantList& arguments,
            std::function<void(const QDBusPendingCall&)> answered);
  void notify(const NotificationRequest& request, const QStringList& capabilities,
              const std::function<void(bool shown)>& done);

  std::function<void(const std::string&)> onClicked_;
  std::unique_ptr<QDBusServiceWatcher> server_;  ///< none before the bus is met
  std::map<std::string, uint> ids_;              ///< what the present server showed: its id by identifier
  std::map<uint, QByteArray> tokens_;            ///< given for a click that is about to be told
};

}  // namespace brimle
