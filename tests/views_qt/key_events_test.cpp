#include "views/qt/key_events.h"

#include <gtest/gtest.h>

#include "control/control_fixture.h"

namespace brimle {
namespace {

struct Pressed {
  int key;
  Qt::KeyboardModifiers held;
  quint32 place = 0;  ///< as X11 and Wayland count
  quint32 native = 0;
};

std::string read(const Pressed& pressed) {
  const QKeyEvent event(QEvent::KeyPress, pressed.key, pressed.held, pressed.place, 0, pressed.native);
  const KeyPress press = keyPressOf(event);
  std::string text;
  for (int bit = 0; bit < 6; ++bit) {
    if (press.modifiers.has(static_cast<Modifier>(1 << bit))) text += kModifiers[bit] + "+";
  }
  for (const auto& [name, code] : kKeys) {
    if (static_cast<KeyCode>(code) == press.code) text += name;
  }
  return text + "'" + press.characters;
}

TEST(KeyEvents, AreReducedToKeysWithCommandsAndToWhatTheyType) {
  const Qt::KeyboardModifiers none, pad = Qt::KeypadModifier, ctrl = Qt::ControlModifier;
  const std::pair<Pressed, const char*> rows[] = {
      {{Qt::Key_A, none}, "a'a"},
      {{Qt::Key_C, ctrl}, "cmd+c'c"},
      {{Qt::Key_V, ctrl | Qt::ShiftModifier}, "shift+cmd+'v"},
      {{Qt::Key_Return, none}, "return'"},
      {{Qt::Key_Return, pad}, "'"},
      {{Qt::Key_Enter, pad}, "'"},
      {{Qt::Key_Tab, none}, "tab'"},
      {{Qt::Key_Backtab, Qt::ShiftModifier}, "shift+'"},
      {{Qt::Key_Space, Qt::AltModifier}, "opt+space' "},
      {{Qt::Key_Backspace, none}, "back'"},
      {{Qt::Key_Delete, pad}, "del'"},
      {{Qt::Key_Escape, Qt::MetaModifier}, "ctrl+esc'"},
      {{Qt::Key_Down, pad}, "down'"},
      {{Qt::Key_Up, ctrl}, "cmd+up'"},
      {{Qt::Key_Left, none}, "'"},
      {{Qt::Key_1, pad}, "'1"},
      {{Qt::Key_Up, none, 0, 2}, "caps+up'"},
      {{Qt::Key_Up, none, 0, 16}, "up'"},  // Caps Lock, Num Lock
      // Letters that are not Latin count by their place, Latin ones by what they type.
      {{0x0424, none, 38}, "a'a"},
      {{0x0421, ctrl, 54}, "cmd+c'c"},
      {{0x041C, ctrl, 55}, "cmd+'v"},
      {{0x0424, ctrl, 40}, "cmd+'"},
      {{Qt::Key_Q, ctrl, 38}, "cmd+'q"},
      {{Qt::Key_A, ctrl, 24}, "cmd+a'a"},
      {{Qt::Key_Up, none, 38}, "up'"}};
  for (const auto& [pressed, expected] : rows) {
    EXPECT_EQ(read(pressed), expected)
        << "key " << std::hex << pressed.key << " at " << std::dec << pressed.place;
  }
}

}  // namespace
}  // namespace brimle
