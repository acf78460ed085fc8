// The tests of the hot key. They run on an X server and a session bus of their own, which the program starts
// around itself: keys are pressed there and nowhere else.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QProcess>

namespace {

constexpr auto kInside = "BRIMLE_HOT_KEY_TESTS_INSIDE";
constexpr int kPatience = 60'000;  // milliseconds; only a broken machine needs them

int runInside(QStringList arguments) {
  QProcess display;
  display.start("Xvfb", {"-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp"});
  if (!display.waitForReadyRead(kPatience)) qFatal("the X server does not start");
  qputenv("DISPLAY", ":" + display.readLine().trimmed());
  qputenv("QT_QPA_PLATFORM", "xcb");
  qunsetenv("WAYLAND_DISPLAY");
  qputenv(kInside, "1");
  arguments[0] = QCoreApplication::applicationFilePath();
  const QString bus = QStringLiteral("--config-file=" BRIMLE_SOURCE_DIR "/tests/hot_key/bus.conf");
  const int result = QProcess::execute("dbus-run-session", QStringList{bus, "--"} + arguments);
  display.terminate();
  display.waitForFinished(kPatience);
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty(kInside)) {
    const QCoreApplication application(argc, argv);
    return runInside(QCoreApplication::arguments());
  }
  testing::InitGoogleTest(&argc, argv);
  const QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
