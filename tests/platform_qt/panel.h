// A desktop's panel on the session bus, as its status items see it: the StatusNotifierWatcher that they
// register with, and the host that asks them what they show. It also speaks for the Settings portal.
//
// The watcher answers in a thread of its own, as Qt waits for one of its answers.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QImage>
#include <QObject>
#include <QThread>
#include <atomic>
#include <memory>

namespace brimle {

class Watcher : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
  Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

 public:
  bool hasHost() const { return hasHost_; }
  void setHost(bool there) { hasHost_ = there; }

 public slots:
  void RegisterStatusNotifierItem(const QString& service) { emit registered(service); }

 signals:
  void registered(const QString& service);

 private:
  std::atomic<bool> hasHost_ = false;
};

/// A row of a menu that is shown from the item's own description.
struct PanelRow {
  int id = 0;
  std::string label;  ///< empty for a line
  bool enabled = true;
  int checked = -1;  ///< 0 or 1; -1 where it carries no mark

  bool operator==(const PanelRow&) const = default;
};

class Panel : public QObject {
  Q_OBJECT

 public:
  static constexpr int kPatience = 60'000;  ///< milliseconds; only a broken machine needs them

  QString item;  ///< the last that registered
  int registrations = 0;
  int newIcons = 0;  ///< how often that item said its icon is new

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

  QVariant property(const char* name);
  /// The item's icon of that many pixels; a null image where it has none.
  QImage icon(int side);
  std::string tooltip();
  void call(const char* method, const QVariantList& arguments);
  /// As the item's menu describes its rows; `willOpen` tells it first that they are about to be shown.
  std::vector<PanelRow> menuRows(bool willOpen);
  void choose(int row);

 private slots:
  void iconChanged() { ++newIcons; }

 private:
  void noteRegistered(const QString& service);
  QVariantList ask(const QString& path, const char* interface, const char* method,
                   const QVariantList& arguments);
  QVariantList askMenu(const char* method, const QVariantList& arguments);

  QThread thread_;
  Watcher watcher_;
  QDBusConnection bus_;
};

}  // namespace brimle
