#include "views/qt/main_window.h"

#include <QtQml/qqmlextensionplugin.h>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>

#include "views/qt/key_events.h"

Q_IMPORT_QML_PLUGIN(BrimlePlugin)

namespace brimle {
MainWindow::MainWindow(Today::Parts parts, Pasteboard& pasteboard)
    : store_(parts.store),
      keys_(parts.store, parts.sel, parts.ui, pasteboard, parts.todayFocusAdd),
      clickAway_(parts.sel, parts.ui, parts.time),
      todayFocusAdd_(parts.todayFocusAdd),
      theme_(parts.ui),
      texts_(parts.ui),
      today_(parts),
      archive_(parts.store, parts.sel, parts.ui, parts.archive) {
  engine_.setInitialProperties({{QStringLiteral("today"), QVariant::fromValue(&today_)},
                                {QStringLiteral("archive"), QVariant::fromValue(&archive_)}});
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
  todayFocusAdd_.notify();
}

bool MainWindow::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress: return handleKey(*static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonRelease: {
      const auto& mouse = *static_cast<QMouseEvent*>(event);
      if (mouse.button() == Qt::LeftButton) clickAway_.mouseUp(modifiersOf(mouse.modifiers()));
      return false;
    }
    case QEvent::Close:
      if (closed_) closed_();
      return false;
    default: return false;
  }
}

bool MainWindow::handleKey(const QKeyEvent& event) {
  const KeyPress key = keyPressOf(event);
  return handleShortcut(key) || keys_.filter(key, keyboardPlace());
}

/// Commands of the whole program. A text field that can undo or redo its own typing comes first.
bool MainWindow::handleShortcut(const KeyPress& key) {
  constexpr Modifiers shiftCommand = Modifier::shift | Modifier::command;
  if (key.characters == "z" && key.modifiers == Modifier::command && !fieldTakes("canUndo")) {
    store_.undo();
  } else if (key.characters == "z" && key.modifiers == shiftCommand && !fieldTakes("canRedo")) {
    store_.redo();
  } else if (key.characters == "q" && key.modifiers == Modifier::command) {
    QCoreApplication::quit();
  } else {
    return false;
  }
  return true;
}

bool MainWindow::fieldTakes(const char* property) const {
  const QQuickItem* focused = window_->activeFocusItem();
  return focused && focused->property(property).toBool();
}

KeyboardPlace MainWindow::keyboardPlace() const {
  const QQuickItem* focused = window_->activeFocusItem();
  const bool inText =
      focused && (focused->inherits("QQuickTextInput") || focused->inherits("QQuickTextEdit"));
  return {window_->isActive(), inText};
}

}  // namespace brimle
