// One instance of the program a session: the first owns the application's name on the session bus and is
// asked there, by org.freedesktop.Application, to come forward. Which instance is the first is not decided
// here but by the lock on the data folder.
#pragma once

#include <QObject>
#include <QVariantMap>
#include <functional>
#include <string>

namespace brimle {

/// The running program as others on the session bus see it.
class QtInstance : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  /// What others on the bus can ask for; each is called with the activation token of whoever asks, empty
  /// where there is none.
  struct Requests {
    std::function<void(const std::string& token)> activate;
    std::function<void(const std::string& token)> newTask;  ///< the desktop file's action "new-task"
  };

  explicit QtInstance(Requests requests);

  /// Takes the application's name on the session bus, without waiting for the answer.
  void announce();
  /// Whether others can ask for this instance now: the bus is there, and has given it the name.
  bool isReachable() const;

 public slots:
  void Activate(const QVariantMap& platformData);
  void Open(const QStringList& uris, const QVariantMap& platformData);
  void ActivateAction(const QString& name, const QVariantList& parameter, const QVariantMap& platformData);

 private:
  const Requests requests_;
  bool hasName_ = false;
};

/// Asks the instance that is running to come forward, waiting a moment for one that is only starting. False
/// where it cannot be reached. For a process that is about to end: it blocks.
bool activateRunningInstance();

}  // namespace brimle
