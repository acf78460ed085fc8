#include "views/qt/key_events.h"

#include "views/qt/convert.h"

namespace brimle {
namespace {

struct KeyRow {
  Qt::Key key;
  KeyCode code;
};
constexpr KeyRow kKeys[] = {
    {Qt::Key_A, KeyCode::a},
    {Qt::Key_C, KeyCode::c},
    {Qt::Key_Return, KeyCode::enter},
    {Qt::Key_Tab, KeyCode::tab},
    {Qt::Key_Space, KeyCode::space},
    {Qt::Key_Backspace, KeyCode::backspace},
    {Qt::Key_Escape, KeyCode::escape},
    {Qt::Key_Down, KeyCode::down},
    {Qt::Key_Delete, KeyCode::forwardDelete},
    {Qt::Key_Up, KeyCode::up},
};

struct ModifierRow {
  Qt::KeyboardModifier held;
  Modifier modifier;
};
constexpr ModifierRow kModifiers[] = {
    {Qt::ShiftModifier, Modifier::shift},
    {Qt::ControlModifier, Modifier::command},
    {Qt::AltModifier, Modifier::option},
    {Qt::MetaModifier, Modifier::control},
};

/// Where the keys of the commands are on a Latin keyboard: evdev codes, 8 more as X11 and Wayland count them.
struct PlaceRow {
  quint32 scanCode;
  Qt::Key key;
  bool always = false;  ///< also where the key types something Latin
};
constexpr PlaceRow kPlaces[] = {
    {38, Qt::Key_A},     {54, Qt::Key_C},       {55, Qt::Key_V},       {52, Qt::Key_Z},
    {24, Qt::Key_Q},     {57, Qt::Key_N},       {58, Qt::Key_M},       {53, Qt::Key_X},
    {61, Qt::Key_Slash}, {10, Qt::Key_1, true}, {11, Qt::Key_2, true}, {12, Qt::Key_3, true},
};

/// X11's lock bit, which Qt hands through with the native modifiers.
constexpr quint32 kCapsLock = 1u << 1;

int keyOf(const QKeyEvent& event) {
  const bool isLatin = event.key() < 0x80 || event.key() >= Qt::Key_Escape;
  for (const PlaceRow& row : kPlaces) {
    if (row.scanCode == event.nativeScanCode() && (row.always || !isLatin)) return row.key;
  }
  return event.key();
}

}  // namespace

Modifiers modifiersOf(Qt::KeyboardModifiers modifiers) {
  Modifiers held;
  for (const ModifierRow& row : kModifiers) {
    if (modifiers.testFlag(row.held)) held = held | row.modifier;
  }
  return held;
}

KeyPress keyPressOf(const QKeyEvent& event) {
  KeyPress press;
  const int key = keyOf(event);
  const bool onPad = event.modifiers().testFlag(Qt::KeypadModifier);
  for (const KeyRow& row : kKeys) {
    if (row.key == key && !(onPad && key == Qt::Key_Return)) press.code = row.code;
  }
  if (key >= Qt::Key_Space && key < 0x80) press.characters = fromQt(QString(QChar(key)).toLower());
  press.modifiers = modifiersOf(event.modifiers());
  if (event.matches(QKeySequence::Paste)) {  // the desktop's other keys for it, such as Shift+Insert
    press.characters = "v";
    press.modifiers = Modifier::command;
  }
  if (event.nativeModifiers() & kCapsLock) press.modifiers = press.modifiers | Modifier::capsLock;
  return press;
}

bool isTyping(const QKeyEvent& event) {
  const QString text = event.text().trimmed();
  return !text.isEmpty() && text.front().category() != QChar::Other_Control &&
         !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

std::optional<AltTap::Input> altInputOf(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::FocusOut: return AltTap::Input::other;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: break;
    default: return std::nullopt;
  }
  const auto& key = static_cast<const QKeyEvent&>(event);
  if (key.isAutoRepeat()) return std::nullopt;
  const bool isAlt = key.key() == Qt::Key_Alt;
  if (event.type() == QEvent::KeyRelease)
    return isAlt ? std::optional(AltTap::Input::altReleased) : std::nullopt;
  const bool alone = !(key.modifiers() & ~Qt::AltModifier);
  return isAlt && alone ? AltTap::Input::altPressed : AltTap::Input::other;
}

}  // namespace brimle
