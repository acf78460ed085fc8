// What a press of a real keyboard is reduced to.
#include "views/qt/key_events.h"

#include <gtest/gtest.h>

#include <QKeySequence>
#include <ranges>

#include "control/control_fixture.h"
#include "views/qt/convert.h"

namespace brimle {
namespace {

/// What a press such as "Ctrl+Ф@55~2", at a place on the keyboard and with native modifiers, is reduced to:
/// "cmd+c/c" is the key with its code and what it types.
std::string reduced(const std::string& press) {
  const auto native = split(press, '~'), place = split(native[0], '@');
  const QKeyCombination keys = QKeySequence::fromString(toQt(place[0]))[0];
  const auto number = [](const auto& parts) { return parts.size() > 1 ? std::stoul(parts[1]) : 0; };
  const auto [code, characters, modifiers] =
      keyPressOf({QEvent::KeyPress, keys.key(), keys.keyboardModifiers(), quint32(number(place)), 0,
                  quint32(number(native))});
  std::string text;
  for (int bit = 0; bit < 6; ++bit) {
    if (modifiers.has(static_cast<Modifier>(1 << bit))) text += kModifiers[bit] + "+";
  }
  for (const auto& [name, known] : kKeys) text += static_cast<KeyCode>(known) == code ? name : "";
  return text + "/" + characters;
}

TEST(KeyEvents, AreReducedToKeysWithCommandsAndToWhatTheyType) {
  const std::vector<std::vector<std::string>> rows = {
      {"A a/a", "Ctrl+C cmd+c/c", "Ctrl+Shift+V shift+cmd+/v", "Return return/", "Num+Return /",
       "Num+Enter /", "Tab tab/", "Shift+Backtab shift+/", "Alt+Space opt+space/ ", "Backspace back/",
       "Num+Del del/", "Meta+Esc ctrl+esc/", "Num+Down down/", "Ctrl+Up cmd+up/", "Left /", "Num+1 /1"},
      // Caps Lock counts, Num Lock does not.
      {"Up~2 caps+up/", "Up~16 up/"},
      // Letters that are not Latin count by their place, Latin ones by what they type.
      {"Ф@38 a/a", "Ctrl+С@54 cmd+c/c", "Ctrl+М@55 cmd+/v", "Ctrl+Ф@40 cmd+/", "Ctrl+Q@38 cmd+/q",
       "Ctrl+A@24 cmd+a/a", "Up@38 up/"}};
  for (const std::string& row : rows | std::views::join) {
    EXPECT_EQ(reduced(split(row, ' ')[0]), row.substr(row.find(' ') + 1)) << row;
  }
}

TEST(KeyEvents, TypeWhatCanBeSeenUnlessACommandIsHeld) {
  const std::tuple<QString, Qt::KeyboardModifiers, bool> rows[] = {{"a", {}, true},
                                                                   {"É", Qt::ShiftModifier, true},
                                                                   {"😀", {}, true},
                                                                   {"1", Qt::KeypadModifier, true},
                                                                   {"@", Qt::GroupSwitchModifier, true},
                                                                   {"a", Qt::ControlModifier, false},
                                                                   {"a", Qt::AltModifier, false},
                                                                   {"a", Qt::MetaModifier, false},
                                                                   {" ", {}, false},
                                                                   {"\t", {}, false},
                                                                   {"\r", {}, false},
                                                                   {"\b", {}, false},
                                                                   {"\x7F", {}, false},
                                                                   {"", {}, false}};
  for (const auto& [text, held, types] : rows) {
    EXPECT_EQ(isTyping({QEvent::KeyPress, 0, held, text}), types) << text.toStdString();
  }
}

}  // namespace
}  // namespace brimle
