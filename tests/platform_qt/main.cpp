// The tests of the desktop's services. The program starts an X server and a session bus for itself and runs
// on them: no panel, browser or autostart folder of whoever runs it is met.
#include <gtest/gtest.h>

#include <QApplication>
#include <QProcess>

#include "platform_qt/patience.h"

namespace {

constexpr auto kInside = "BRIMLE_PLATFORM_TESTS_INSIDE";

int runInside(QStringList arguments) {
  QProcess display;
  display.start("Xvfb", {"-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp"});
  if (!display.waitForReadyRead(brimle::kPatience)) qFatal("the X server does not start");
  qputenv("DISPLAY", ':' + display.readLine().trimmed());
  qputenv("QT_QPA_PLATFORM", "xcb");
  qputenv(kInside, "1");
  for (const char* variable : {"WAYLAND_DISPLAY", "XDG_CURRENT_DESKTOP", "XDG_ACTIVATION_TOKEN"})
    qunsetenv(variable);
  const QStringList bus{"--config-file=" BRIMLE_SOURCE_DIR "/tests/platform_qt/bus.conf", "--",
                        QCoreApplication::applicationFilePath()};
  const int result = QProcess::execute("dbus-run-session", bus + arguments.mid(1));
  display.terminate();
  display.waitForFinished(brimle::kPatience);
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty(kInside)) {
    const QCoreApplication application(argc, argv);
    return runInside(QCoreApplication::arguments());
  }
  testing::InitGoogleTest(&argc, argv);
  QCoreApplication::setApplicationName("Brimle");
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
