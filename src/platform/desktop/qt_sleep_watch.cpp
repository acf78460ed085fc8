#include "platform/desktop/qt_sleep_watch.h"

#include <QDBusConnection>
#include <QThread>
#include <QTimer>
#include <utility>

#include "platform/desktop/posix_bus_probe.h"

namespace brimle {
namespace {

const auto kBus = QStringLiteral("brimle-system");
constexpr std::chrono::seconds kPatience(10);

}  // namespace

/// Qt meets its buses one after the other: the session's, which the start needs, has its turn first.
QtSleepWatch::QtSleepWatch(std::function<void()> onWake) : onWake_(std::move(onWake)) {
  QTimer::singleShot(0, this, &QtSleepWatch::meetBus);
}

/// On a thread of its own, for meeting a bus is waiting until it answers. One that hangs is not met at all:
/// Qt would serve no other bus meanwhile, and hold up whoever asks it to. The environment is this thread's.
void QtSleepWatch::meetBus() {
  QThread* meeting = QThread::create([addresses = systemBusAddresses()] {
    if (!busHangs(addresses, kPatience)) QDBusConnection::connectToBus(QDBusConnection::SystemBus, kBus);
  });
  connect(meeting, &QThread::finished, this, &QtSleepWatch::listen);
  connect(meeting, &QThread::finished, meeting, &QThread::deleteLater);
  meeting->start();
}

/// Not bound to logind's name: Qt would ask the bus who owns it, and wait. Another sender does no harm.
void QtSleepWatch::listen() {
  QDBusConnection(kBus).connect({}, "/org/freedesktop/login1", "org.freedesktop.login1.Manager",
                                "PrepareForSleep", this, SLOT(prepareForSleep(bool)));
}

void QtSleepWatch::prepareForSleep(bool starting) {
  if (!starting) onWake_();
}

}  // namespace brimle
