#include "platform/desktop/qt_xcb_key_grab.h"

#include <xcb/xcb_keysyms.h>

#include <array>

#include "platform/desktop/qt_xcb.h"

namespace brimle {
namespace {

// Numbers of the X protocol (X.h, keysymdef.h, XKB.h) that xcb gives no names.
constexpr xcb_keysym_t kT = 0x74, kAlt = 0xffe9, kSuper = 0xffeb, kNumLock = 0xff7f;
constexpr std::uint8_t kXkbNewKeyboard = 0, kXkbMap = 1;
constexpr int kColumns = 4;  ///< two levels in each of two layouts

constexpr std::uint16_t kModifiers = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 |
                                     XCB_MOD_MASK_2 | XCB_MOD_MASK_3 | XCB_MOD_MASK_4 | XCB_MOD_MASK_5;

std::uint8_t firstXkbEvent(xcb_connection_t* connection) {
  constexpr std::string_view name = "XKEYBOARD";
  const auto cookie = xcb_query_extension(connection, name.size(), name.data());
  const xcb::Owned<xcb_query_extension_reply_t> reply(xcb_query_extension_reply(connection, cookie, nullptr));
  return reply && reply->present ? reply->first_event : 0;
}

/// The key of the letter in the first of the keyboard's layouts that has it; the fallback where none does.
xcb_keycode_t keyOfT(xcb_connection_t* connection, xcb_key_symbols_t* symbols, xcb_keycode_t fallback) {
  const xcb_setup_t* setup = xcb_get_setup(connection);
  for (int column = 0; column < kColumns; ++column) {
    for (int key = setup->min_keycode; key <= setup->max_keycode; ++key) {
      const auto code = static_cast<xcb_keycode_t>(key);
      if (xcb_key_symbols_get_keysym(symbols, code, column) == kT) return code;
    }
  }
  return fallback;
}

/// The modifier that a key of this symbol sets; the fallback where no key does.
std::uint16_t modifierOf(xcb_keysym_t symbol, xcb_key_symbols_t* symbols,
                         const xcb_get_modifier_mapping_reply_t& map, std::uint16_t fallback) {
  const xcb::Owned<xcb_keycode_t> keys(xcb_key_symbols_get_keycode(symbols, symbol));
  const xcb_keycode_t* mapped = xcb_get_modifier_mapping_keycodes(&map);
  const int count = xcb_get_modifier_mapping_keycodes_length(&map);
  for (const xcb_keycode_t* key = keys.get(); key && *key != XCB_NO_SYMBOL; ++key) {
    for (int at = 0; at < count; ++at) {
      if (mapped[at] == *key) return static_cast<std::uint16_t>(1 << (at / map.keycodes_per_modifier));
    }
  }
  return fallback;
}

/// The modifiers with Num Lock and Caps Lock off and on.
std::array<std::uint16_t, 4> withLocks(int modifiers, int numLock) {
  std::array<std::uint16_t, 4> variants;
  for (int at = 0; at < 4; ++at) {
    variants[at] =
        static_cast<std::uint16_t>(modifiers | (at & 1 ? XCB_MOD_MASK_LOCK : 0) | (at & 2 ? numLock : 0));
  }
  return variants;
}

}  // namespace

QtXcbKeyGrab::QtXcbKeyGrab() = default;

QtXcbKeyGrab::~QtXcbKeyGrab() {
  if (connection_ && connection_ == xcb::connectionOfQt()) release();
}

void QtXcbKeyGrab::install(std::function<void(const std::string& token)> onPress) {
  onPress_ = std::move(onPress);
  connection_ = xcb::connectionOfQt();
  if (!connection_) return;
  root_ = xcb::rootOf(connection_);
  xkbEvent_ = firstXkbEvent(connection_);
  qGuiApp->installNativeEventFilter(this);
  keyboard_ = readKeyboard();
  grab();
}

QtXcbKeyGrab::Keyboard QtXcbKeyGrab::readKeyboard() const {
  const auto cookie = xcb_get_modifier_mapping(connection_);
  const xcb::Owned<xcb_get_modifier_mapping_reply_t> map(
      xcb_get_modifier_mapping_reply(connection_, cookie, nullptr));
  const std::unique_ptr<xcb_key_symbols_t, decltype(&xcb_key_symbols_free)> symbols(
      xcb_key_symbols_alloc(connection_), xcb_key_symbols_free);
  if (!map || !symbols) return keyboard_;
  constexpr Keyboard usual;
  return {keyOfT(connection_, symbols.get(), usual.t), modifierOf(kAlt, symbols.get(), *map, usual.alt),
          modifierOf(kSuper, symbols.get(), *map, usual.super),
          modifierOf(kNumLock, symbols.get(), *map, usual.numLock)};
}

/// A change of layout comes as several events, most of which tell nothing new.
void QtXcbKeyGrab::keyboardChanged() {
  const Keyboard keyboard = readKeyboard();
  if (keyboard == keyboard_ && modifiers_ != 0) return;
  release();
  keyboard_ = keyboard;
  grab();
}

void QtXcbKeyGrab::grab() {
  const auto alt = keyboard_.alt;
  if (grabWith(XCB_MOD_MASK_CONTROL | alt)) return setKeyInForce("Ctrl+Alt+T");
  if (grabWith(keyboard_.super | alt)) return setKeyInForce("Super+Alt+T");
  setKeyInForce({});
}

/// False, with nothing grabbed, where another program owns the key in any state of the locks.
bool QtXcbKeyGrab::grabWith(std::uint16_t modifiers) {
  bool isFree = true;
  for (const std::uint16_t variant : withLocks(modifiers, keyboard_.numLock)) {
    const auto cookie = xcb_grab_key_checked(connection_, false, root_, variant, keyboard_.t,
                                             XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const xcb::Owned<xcb_generic_error_t> error(xcb_request_check(connection_, cookie));
    isFree = isFree && !error;
  }
  modifiers_ = modifiers;
  if (!isFree) release();
  return isFree;
}

void QtXcbKeyGrab::release() {
  if (modifiers_ == 0) return;
  for (const std::uint16_t variant : withLocks(modifiers_, keyboard_.numLock))
    xcb_ungrab_key(connection_, keyboard_.t, root_, variant);
  xcb_flush(connection_);
  modifiers_ = 0;
  isDown_ = false;
}

bool QtXcbKeyGrab::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  const auto* event = static_cast<const xcb_generic_event_t*>(message);
  const std::uint8_t kind = event->response_type;  // with its top bit where a program made the event up
  if (kind == XCB_KEY_PRESS) {
    pressed(*reinterpret_cast<const xcb_key_press_event_t*>(event));
  } else if (kind == XCB_KEY_RELEASE) {
    released(*reinterpret_cast<const xcb_key_release_event_t*>(event));
  } else if (kind == XCB_MAPPING_NOTIFY ||
             (xkbEvent_ && kind == xkbEvent_ && (event->pad0 == kXkbNewKeyboard || event->pad0 == kXkbMap))) {
    // Later, for Qt reads the keyboard anew at this event too.
    QMetaObject::invokeMethod(this, &QtXcbKeyGrab::keyboardChanged, Qt::QueuedConnection);
  }
  return false;
}

/// A key that is held down repeats: as presses alone, or with a release at the very time of each press.
void QtXcbKeyGrab::pressed(const xcb_key_press_event_t& event) {
  const int locks = XCB_MOD_MASK_LOCK | keyboard_.numLock;
  const bool isOurs = modifiers_ != 0 && event.event == root_ && event.detail == keyboard_.t &&
                      (event.state & kModifiers & ~locks) == (modifiers_ & ~locks);
  if (!isOurs || isDown_ || event.time == releasedAt_) return;
  isDown_ = true;
  // Later, when Qt has taken from the event the time by which the window manager lets a window come forward.
  QMetaObject::invokeMethod(
      this, [this] { onPress_({}); }, Qt::QueuedConnection);
}

void QtXcbKeyGrab::released(const xcb_key_release_event_t& event) {
  if (event.detail != keyboard_.t) return;
  isDown_ = false;
  releasedAt_ = event.time;
}

}  // namespace brimle
