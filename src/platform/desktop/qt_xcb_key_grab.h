// The hot key on X11: a passive grab of Ctrl+Alt+T, or of Super+Alt+T where another program owns that, in
// every state of Num Lock and Caps Lock. It follows the T through changes of the keyboard's layout. On a
// platform without X11 it does nothing.
#pragma once

#include <xcb/xproto.h>

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <cstdint>

#include "platform/hot_key.h"

namespace brimle {

class QtXcbKeyGrab : public QObject, public QAbstractNativeEventFilter, public HotKey {
 public:
  QtXcbKeyGrab();
  /// Gives the key back.
  ~QtXcbKeyGrab() override;

  void install(std::function<void(const std::string& token)> onPress) override;

  /// What Qt asks with every event from the X server; no event is ever kept from it.
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  /// Where the keyboard has what the grab needs; at first as on nearly every keyboard.
  struct Keyboard {
    xcb_keycode_t t = 28;
    std::uint16_t alt = XCB_MOD_MASK_1, super = XCB_MOD_MASK_4, numLock = 0;

    bool operator==(const Keyboard&) const = default;
  };

  Keyboard readKeyboard() const;
  void keyboardChanged();
  void grab();
  bool grabWith(std::uint16_t modifiers);
  void release();
  void pressed(const xcb_key_press_event_t& event);
  void released(const xcb_key_release_event_t& event);

  std::function<void(const std::string&)> onPress_;
  xcb_connection_t* connection_ = nullptr;  ///< Qt's own; none where there is no X11
  xcb_window_t root_ = 0;
  std::uint8_t xkbEvent_ = 0;  ///< the type of the keyboard extension's events; 0 where there is none
  Keyboard keyboard_;
  std::uint16_t modifiers_ = 0;  ///< of the grab that holds; 0 while none does
  bool isDown_ = false;
  xcb_timestamp_t releasedAt_ = 0;
};

}  // namespace brimle
