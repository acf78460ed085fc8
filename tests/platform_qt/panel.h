// A desktop's panel on the session bus, as its status items see it: the StatusNotifierWatcher that they
// register with, and the host that asks them what they show. It also speaks for the Settings portal.
//
// The watcher answers in a thread of its own, as Qt waits for one of its answers.
#pragma once

#include <QDBusConnection>
#include <QImage>
#include <QThread>
#include <QVariant>
#include <atomic>
#include <string>
#include <vector>

namespace brimle {

class Watcher : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
  Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER hasHost)

 public:
  std::atomic<bool> hasHost = false;

 public slots:
  void RegisterStatusNotifierItem(const QString& service) { emit registered(service); }

 signals:
  void registered(const QString& service);
};

class Panel : public QObject {
  Q_OBJECT

 public:
  int registrations = 0;
  int newIcons = 0;  ///< how often items said that their icon is new

  Panel();
  ~Panel() override;

  void start(bool withHost = true);
  void stop();
  void gainHost();
  void awaitRegistrations(int count);
  /// Returns when what the program asked the watcher is answered and the answer has arrived.
  void settle();
  /// The user asks all programs for a dark (1) or a light (2) appearance, or for neither (0).
  void prefer(uint colorScheme);

  // What follows is about the item that registered last.
  QVariant property(const char* name);
  /// Its icon of that many pixels; a null image where it has none.
  QImage icon(int side);
  std::string tooltip();
  void call(const char* method, const QVariantList& arguments);
  void openMenu();
  /// A line is "-", a disabled row stands in brackets, a mark is "x " before its row.
  std::vector<std::string> menuRows();
  /// Chooses a row of those that were asked for last.
  void choose(int row);

 private slots:
  void iconChanged() { ++newIcons; }

 private:
  QVariantList ask(const QString& path, const char* interface, const char* method,
                   const QVariantList& arguments);
  QVariantList askMenu(const char* method, const QVariantList& arguments);

  QString item_;
  QVariantList rowIds_;
  QThread thread_;
  Watcher watcher_;
  QDBusConnection bus_;
};

}  // namespace brimle
