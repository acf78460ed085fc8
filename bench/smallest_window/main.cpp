// The smallest Qt Quick window: what the program's start and memory are measured against. Its window has the
// size and the renderer of the program's.
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

int main(int argc, char** argv) {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  const QGuiApplication application(argc, argv);
  const QQmlApplicationEngine engine(QStringLiteral("qrc:/qt/qml/SmallestWindow/Smallest.qml"));
  return QGuiApplication::exec();
}
