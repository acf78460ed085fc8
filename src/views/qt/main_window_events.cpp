// What the main window does with the events of its Qt window: which keys belong to the rows, which lead the
// keyboard from control to control, what a click leaves.
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>

#include "base/limits.h"
#include "views/qt/convert.h"
#include "views/qt/key_events.h"
#include "views/qt/main_window.h"

namespace brimle {

bool MainWindow::eventFilter(QObject*, QEvent* event) {
  if (const auto input = altInputOf(*event); input && altTap_.ended(*input)) openMenuByKey();
  return filterEvent(event);
}

bool MainWindow::filterEvent(QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress: return handleKey(*static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
      theme_->setFocusShown(false);
      emit theme_->acted();
      leaveEditor(*static_cast<QMouseEvent*>(event));
      return false;
    case QEvent::FocusOut: emit theme_->acted(); return false;
    case QEvent::MouseButtonRelease: {
      const auto& mouse = *static_cast<QMouseEvent*>(event);
      if (mouse.button() == Qt::LeftButton) clickAway_.mouseUp(modifiersOf(mouse.modifiers()));
      // A middle click pastes what is selected elsewhere.
      return mouse.button() == Qt::MiddleButton && keyboardPlace().inTextField &&
             pasteTooLong(fromQt(QGuiApplication::clipboard()->text(QClipboard::Selection)));
    }
    case QEvent::Move:
    case QEvent::Resize:
      if (window_->isVisible() && reports_.frameChanged) reports_.frameChanged();
      return false;
    case QEvent::Close:
      shownAt_ = window_->geometry();
      if (reports_.closed) reports_.closed();
      return false;
    default: return false;
  }
}

/// More than a field can show becomes tasks.
bool MainWindow::pasteTooLong(const std::string& text) {
  if (isShownWhole(text)) return false;
  store_.addLines(text, false);
  return true;
}

/// A click elsewhere closes an editor in place.
void MainWindow::leaveEditor(const QMouseEvent& press) {
  const QQuickItem* field = window_->activeFocusItem();
  if (!field || !field->inherits("QQuickTextInput")) return;
  if (!field->contains(field->mapFromScene(press.position()))) emit rows().releaseKeyboard();
}

bool MainWindow::handleKey(const QKeyEvent& event) {
  emit theme_->acted();
  const KeyPress key = keyPressOf(event);
  if (filterKey(key) || (reports_.key && reports_.key(key)) || handleFocusKey(event)) return true;
  const KeyboardPlace place = keyboardPlace();
  if (isTyping(event) && place.mainWindowIsKey && !place.inTextField) emit rows().typingBegan();
  return false;
}

/// A key that the rows use may move the selection out of sight: the list follows it.
bool MainWindow::filterKey(const KeyPress& key) {
  if (focusedControlTakes(key)) return false;
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
    case Qt::Key_F10: return plain && (shift ? askForMenu() : openMenuByKey());
    case Qt::Key_F6: return plain && (moveFocus(!shift), true);
    case Qt::Key_Up:
    case Qt::Key_Down: return leadToRows(keyPressOf(event));
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      if (event.modifiers().testFlag(Qt::ControlModifier)) return moveFocus(event.key() == Qt::Key_Tab), true;
      theme_->setFocusShown(true);
      return false;
    default: return false;
  }
}

/// An arrow that the field beneath the rows has no use for is the rows' key, where there are any.
bool MainWindow::leadToRows(const KeyPress& key) {
  QQuickItem* field = window_->activeFocusItem();
  if (!field || !field->property("leadsToRows").toBool()) return false;
  emit rows().releaseKeyboard();
  if (filterKey(key)) return true;
  field->forceActiveFocus();
  return false;
}

/// A control that has the keyboard keeps the keys that work it.
bool MainWindow::focusedControlTakes(const KeyPress& key) const {
  const QQuickItem* focused = window_->activeFocusItem();
  return (key.code == KeyCode::space || key.code == KeyCode::enter) && focused &&
         focused->property("takesKeys").toBool();
}

bool MainWindow::askForMenu() {
  if (keyboardPlace().inTextField) return false;
  theme_->setFocusShown(true);
  return rows().askForMenu();
}

bool MainWindow::openMenuByKey() {
  theme_->setFocusShown(true);
  openMenu();
  return true;
}

void MainWindow::openMenu() {
  const auto* button = window_->findChild<QQuickItem*>(QStringLiteral("menu"));
  menuButton_.popUp(button ? button->mapToGlobal(QPointF(0, button->height() + 4)).toPoint()
                           : window_->position());
}

/// Unlike Tab, which in the entry field is a character, this leads out of every control.
void MainWindow::moveFocus(bool forward) {
  QQuickItem* item = window_->activeFocusItem();
  if (!item) item = window_->contentItem();
  theme_->setFocusShown(true);
  item->nextItemInFocusChain(forward)->forceActiveFocus(forward ? Qt::TabFocusReason
                                                                : Qt::BacktabFocusReason);
}

RowScreen& MainWindow::rows() {
  if (archive_.showing()) return archive_;
  return today_;
}

KeyboardPlace MainWindow::keyboardPlace() const {
  const QQuickItem* focused = window_->activeFocusItem();
  const bool inText =
      focused && (focused->inherits("QQuickTextInput") || focused->inherits("QQuickTextEdit"));
  // The rows of a folded window are out of sight, and out of reach.
  return {window_->isActive() && !today_.compact(), inText};
}

}  // namespace brimle
