// The tests of the window. Its platform is the environment's choice: QT_QPA_PLATFORM=offscreen needs no
// display.
#include <gtest/gtest.h>

#include <QApplication>
#include <QQuickWindow>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
