// Tells when the computer woke from sleep: logind's signal on the system bus.
//
// It never makes the program wait for the bus, and where there is none it tells nothing.
#pragma once

#include <QObject>
#include <functional>

namespace brimle {

class QtSleepWatch : public QObject {
  Q_OBJECT

 public:
  explicit QtSleepWatch(std::function<void()> onWake);

 private slots:
  /// Comes before the computer sleeps, as true, and after it woke, as false.
  void prepareForSleep(bool starting);

 private:
  void meetBus();
  void listen();

  std::function<void()> onWake_;
};

}  // namespace brimle
