#include "views/qt/text_menu.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQuickWindow>

#include "i18n/i18n.h"
#include "views/qt/pop_up_menu.h"

namespace brimle {
namespace {

struct Row {
  const char* title;  ///< empty for a separator
  QKeySequence::StandardKey key;
  const char* enabledBy;  ///< the property of the field that tells whether there is anything to do
};
constexpr Row kRows[] = {
    {"Undo", QKeySequence::Undo, "canUndo"},      {"Redo", QKeySequence::Redo, "canRedo"},
    {"", QKeySequence::UnknownKey, ""},           {"Cut", QKeySequence::Cut, "selectedText"},
    {"Copy", QKeySequence::Copy, "selectedText"}, {"Paste", QKeySequence::Paste, "canPaste"},
    {"", QKeySequence::UnknownKey, ""},           {"Select All", QKeySequence::SelectAll, "length"},
};

bool tells(const QVariant& property) {
  return property.typeId() == QMetaType::QString ? !property.toString().isEmpty() : property.toBool();
}

/// By its key, so that a paste from the menu is a paste like any other.
void press(QQuickItem* field, QKeySequence::StandardKey key) {
  const QKeyCombination combination = QKeySequence(key)[0];
  QKeyEvent event(QEvent::KeyPress, combination.key(), combination.keyboardModifiers());
  field->forceActiveFocus();
  QCoreApplication::sendEvent(field->window(), &event);
}

MenuEntry entryOf(const Row& row, QQuickItem* field) {
  MenuEntry entry{.title = *row.title ? I18n::t(row.title) : ""};
  if (!tells(field->property(row.enabledBy))) return entry;
  entry.action = [field = QPointer(field), key = row.key] {
    if (field) press(field, key);
  };
  return entry;
}

}  // namespace

TextMenu::TextMenu() {
  connect(this, &FieldWatch::fieldChanged, this, [this] {
    if (field()) field()->setAcceptedMouseButtons(field()->acceptedMouseButtons() | Qt::RightButton);
  });
}

bool TextMenu::buttonPressed(const QMouseEvent& press) {
  return press.button() == Qt::RightButton && openAt(press.position());
}

bool TextMenu::keyPressed(const QKeyEvent& key) {
  const bool shiftF10 = key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier;
  if (key.key() != Qt::Key_Menu && !shiftF10) return false;
  return openAt(field()->property("cursorRectangle").toRectF().bottomLeft());
}

bool TextMenu::openAt(const QPointF& place) {
  field()->forceActiveFocus();
  std::vector<MenuEntry> items;
  for (const Row& row : kRows) items.push_back(entryOf(row, field()));
  popUpMenu(items, field()->mapToGlobal(place).toPoint());
  return true;
}

}  // namespace brimle
