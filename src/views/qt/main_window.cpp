#include "views/qt/main_window.h"

#include <QtQml/qqmlextensionplugin.h>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QQuickItem>
#include <QScreen>

#include "base/limits.h"
#include "views/qt/convert.h"
#include "views/qt/key_events.h"

Q_IMPORT_QML_PLUGIN(BrimlePlugin)

namespace brimle {
namespace {

/// How long the window takes to fold, to unfold or to take a preset size, in milliseconds.
constexpr int kResizing = 200;

Rect rectOf(const QRect& rect) {
  return {double(rect.x()), double(rect.y()), double(rect.width()), double(rect.height())};
}

}  // namespace

MainWindow::MainWindow(Today::Parts parts, Pasteboard& pasteboard)
    : store_(parts.store),
      keys_(parts.store, parts.sel, parts.ui, pasteboard, parts.todayFocusAdd),
      clickAway_(parts.sel, parts.ui, parts.time),
      todayFocusAdd_(parts.todayFocusAdd),
      theme_(parts.ui),
      texts_(parts.ui),
      today_(parts),
      archive_(parts.store, parts.sel, parts.ui, parts.archive, parts.todayFocusAdd),
      shortcuts_(engine_, parts.ui, parts.store.entryContext().region) {
  engine_.setInitialProperties({{QStringLiteral("today"), QVariant::fromValue(&today_)},
                                {QStringLiteral("archive"), QVariant::fromValue(&archive_)}});
  engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Brimle/MainWindow.qml")));
  if (engine_.rootObjects().isEmpty()) qFatal("the window could not be made");
  window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
  window_->installEventFilter(this);
  connect(&theme_, &Theme::changed, this, [this] { QApplication::setPalette(theme_.palette()); });
  QApplication::setPalette(theme_.palette());
  resizing_.setDuration(kResizing);
  resizing_.setEasingCurve(QEasingCurve::InOutQuad);
  connect(&resizing_, &QVariantAnimation::valueChanged, window_,
          [this](const QVariant& now) { window_->setGeometry(now.toRect()); });
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

Rect MainWindow::frame() const {
  return rectOf(window_->geometry());
}

void MainWindow::setFrame(const Rect& frame, bool animated) {
  const QRect target = QRectF(frame.x, frame.y, frame.width, frame.height).toRect();
  resizing_.stop();
  if (!animated || theme_.reduceMotion() || !window_->isVisible()) return window_->setGeometry(target);
  resizing_.setStartValue(window_->geometry());
  resizing_.setEndValue(target);
  resizing_.start();
}

std::optional<Rect> MainWindow::visibleScreen() const {
  const QScreen* screen = window_->screen();
  if (!screen) screen = QGuiApplication::primaryScreen();
  if (!screen) return std::nullopt;
  return rectOf(screen->availableGeometry());
}

bool MainWindow::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress: return handleKey(*static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress: theme_.setFocusShown(false); return false;
    case QEvent::MouseButtonRelease: {
      const auto& mouse = *static_cast<QMouseEvent*>(event);
      if (mouse.button() == Qt::MiddleButton) return pasteSelectionAsTasks();
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
  return handleShortcut(key) || filterKey(key) || handleFocusKey(event);
}

/// A key that the rows use may move the selection out of sight: the list follows it.
bool MainWindow::filterKey(const KeyPress& key) {
  if (!keys_.filter(key, keyboardPlace())) return false;
  today_.showLead();
  archive_.showLead();
  return true;
}

/// The keys that move the keyboard from control to control, and those that open a context menu.
bool MainWindow::handleFocusKey(const QKeyEvent& event) {
  const bool plain = !(event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
  const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
  switch (event.key()) {
    case Qt::Key_Menu: return askForMenu();
    case Qt::Key_F10: return shift && plain && askForMenu();
    case Qt::Key_F6: return plain && (moveFocus(!shift), true);
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      if (event.modifiers().testFlag(Qt::ControlModifier)) return moveFocus(event.key() == Qt::Key_Tab), true;
      theme_.setFocusShown(true);
      return false;
    default: return false;
  }
}

bool MainWindow::askForMenu() {
  if (keyboardPlace().inTextField) return false;
  return archive_.showing() ? archive_.askForMenu() : today_.askForMenu();
}

/// Unlike Tab, which in the entry field is a character, this leads out of every control.
void MainWindow::moveFocus(bool forward) {
  QQuickItem* item = window_->activeFocusItem();
  if (!item) item = window_->contentItem();
  theme_.setFocusShown(true);
  item->nextItemInFocusChain(forward)->forceActiveFocus(forward ? Qt::TabFocusReason
                                                                : Qt::BacktabFocusReason);
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
  } else if (key.characters == "/" && key.modifiers == Modifier::command) {
    shortcuts_.show();
  } else {
    return false;
  }
  return true;
}

/// A middle click pastes what is selected elsewhere; more than a field can show becomes tasks instead.
bool MainWindow::pasteSelectionAsTasks() {
  if (!keyboardPlace().inTextField) return false;
  const std::string text = fromQt(QGuiApplication::clipboard()->text(QClipboard::Selection));
  if (isShownWhole(text)) return false;
  store_.addLines(text, false);
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
