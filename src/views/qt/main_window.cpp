#include "views/qt/main_window.h"

#include <QtQml/qqmlextensionplugin.h>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>

#include "base/text.h"
#include "views/row_text.h"

Q_IMPORT_QML_PLUGIN(BrimlePlugin)

namespace brimle {
namespace {

constexpr auto kShiftControl = Qt::ControlModifier | Qt::ShiftModifier;

Qt::KeyboardModifiers chordOf(const QKeyEvent& event) {
  return event.modifiers() & ~Qt::KeypadModifier;
}

}  // namespace

MainWindow::MainWindow(Store& store, ContentView& view, UIState& ui, Pasteboard& pasteboard)
    : store_(store), pasteboard_(pasteboard), theme_(ui), texts_(ui), today_(store, view, ui) {
  engine_.setInitialProperties({{QStringLiteral("today"), QVariant::fromValue(&today_)}});
  engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Brimle/MainWindow.qml")));
  if (engine_.rootObjects().isEmpty()) qFatal("the window could not be made");
  window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
  window_->installEventFilter(this);
}

MainWindow::~MainWindow() {
  window_->removeEventFilter(this);
}

void MainWindow::bringForward(const QByteArray& activationToken) {
  if (!activationToken.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", activationToken);
  window_->show();
  window_->raise();
  window_->requestActivate();
  emit today_.focusAdd();
}

bool MainWindow::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      return handleKey(*static_cast<QKeyEvent*>(event));
    case QEvent::Close:
      if (closed_) closed_();
      return false;
    default:
      return false;
  }
}

/// Keys of the whole window. A text field that can undo or redo its own typing comes first.
bool MainWindow::handleKey(const QKeyEvent& event) {
  const auto chord = chordOf(event);
  switch (event.key()) {
    case Qt::Key_V:
      return chord == Qt::ControlModifier && pasteAsTasks();
    case Qt::Key_Z:
      if (chord == Qt::ControlModifier && !fieldTakes("canUndo")) return store_.undo(), true;
      if (chord == kShiftControl && !fieldTakes("canRedo")) return store_.redo(), true;
      return false;
    case Qt::Key_Q:
      if (chord == Qt::ControlModifier) QCoreApplication::quit();
      return chord == Qt::ControlModifier;
    default:
      return false;
  }
}

/// Several lines, or more than a field can show, become tasks at once; one line is an ordinary paste.
bool MainWindow::pasteAsTasks() {
  const auto text = pasteboard_.string();
  if (!text || (!containsNewline(*text) && text->size() <= kLongestShown)) return false;
  store_.addLines(*text, false);
  return true;
}

bool MainWindow::fieldTakes(const char* property) const {
  const QQuickItem* focused = window_->activeFocusItem();
  return focused && focused->property(property).toBool();
}

}  // namespace brimle
