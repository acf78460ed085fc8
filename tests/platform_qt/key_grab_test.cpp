// The key that X gives: whatever the locks and the layout are, and beside other programs that want it.
#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QProcess>
#include <cstdlib>

#include "platform/desktop/qt_hot_key.h"
#include "platform/simulated/simulated_preferences_store.h"
#include "platform_qt/patience.h"

namespace brimle {
namespace {

constexpr int kControlAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1,
              kSuperAlt = XCB_MOD_MASK_4 | XCB_MOD_MASK_1;

void run(const char* program, const QStringList& arguments) {
  ASSERT_EQ(QProcess::execute(program, arguments), 0) << program;
}

/// Another program on the same display.
struct OtherProgram {
  xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
  ~OtherProgram() { xcb_disconnect(connection); }

  /// False where the key has another owner.
  bool grab(int modifiers) const {
    constexpr int kT = 28;  // the key's number where the layout is Latin
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto cookie = xcb_grab_key_checked(connection, false, root, modifiers, kT, XCB_GRAB_MODE_ASYNC,
                                             XCB_GRAB_MODE_ASYNC);
    xcb_generic_error_t* error = xcb_request_check(connection, cookie);
    std::free(error);
    return !error;
  }
};

class HotKeyOnX11 : public testing::Test, public QAbstractNativeEventFilter {
 protected:
  HotKeyOnX11() { qGuiApp->installNativeEventFilter(this); }
  ~HotKeyOnX11() override { setLayout("us"); }

  void start() {
    key = hotKeyOfDesktop(preferences);
    key->install([this](const std::string&) { ++presses; });
  }
  /// How often the hot key was told of while keys were typed; in the notation of xdotool.
  int type(const QStringList& arguments) {
    const int before = presses;
    run("xdotool", arguments);
    settle();
    return presses - before;
  }
  void setLayout(const char* layout) {
    run("setxkbmap", {layout});
    settle();
  }
  /// Returns when Qt has seen, and the program has done, all that the X server had to tell by now.
  void settle() {
    xcb_connection_t* connection =
        qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    const xcb_window_t window = xcb_generate_id(connection);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_create_window(connection, 0, window, root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t mark{};
    mark.response_type = XCB_CLIENT_MESSAGE;
    mark.format = 32;
    mark.window = expected = window;
    xcb_send_event(connection, false, window, 0, reinterpret_cast<const char*>(&mark));
    xcb_flush(connection);
    waitFor([this] { return expected == 0; });
    xcb_destroy_window(connection, window);
    QCoreApplication::processEvents();
  }
  bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
    const auto* event = static_cast<const xcb_client_message_event_t*>(message);
    keyPresses += event->response_type == XCB_KEY_PRESS;
    const bool isMessage = (event->response_type & 0x7f) == XCB_CLIENT_MESSAGE;
    if (isMessage && event->window == expected) expected = 0;
    return false;
  }

  xcb_window_t expected = 0;  ///< of the mark that is to come
  int keyPresses = 0;         ///< that the X server told Qt of
  int presses = 0;
  SimulatedPreferencesStore preferences;
  std::unique_ptr<HotKey> key;
};

TEST_F(HotKeyOnX11, IsToldWhateverTheLocksAreAndOnceWhileItIsHeld) {
  start();
  EXPECT_EQ(key->keyInForce(), "Ctrl+Alt+T");
  EXPECT_EQ(type({"key", "ctrl+alt+t"}), 1);
  for (const char* lock : {"Num_Lock", "Caps_Lock", "Num_Lock", "Caps_Lock"})
    EXPECT_EQ(type({"key", lock, "ctrl+alt+t"}), 1) << lock;
  EXPECT_EQ(type({"key", "ctrl+t", "alt+t", "ctrl+alt+shift+t", "ctrl+alt+r", "super+alt+t"}), 0);

  const int before = keyPresses, pressesBefore = presses;
  run("xdotool", {"keydown", "ctrl", "keydown", "alt", "keydown", "t"});
  waitFor([&] { return keyPresses >= before + 3; });
  type({"keyup", "t", "keyup", "alt", "keyup", "ctrl"});
  EXPECT_EQ(presses, pressesBefore + 1);
  EXPECT_EQ(type({"key", "ctrl+alt+t", "ctrl+alt+t"}), 2);
}

TEST_F(HotKeyOnX11, IsTheSecondOrNoneWhereOthersOwnTheFirstAndReturnsWithTheNextKeyboard) {
  auto ownerOfBoth = std::make_unique<OtherProgram>();
  ASSERT_TRUE(ownerOfBoth->grab(kControlAlt) && ownerOfBoth->grab(kSuperAlt));
  start();
  int changes = 0;
  const Subscription observing = key->observe([&] { ++changes; });
  EXPECT_EQ(key->keyInForce(), "");
  EXPECT_EQ(type({"key", "ctrl+alt+t", "super+alt+t"}), 0);
  ownerOfBoth.reset();
  const OtherProgram other;
  ASSERT_TRUE(other.grab(kControlAlt | XCB_MOD_MASK_LOCK));
  setLayout("de");
  EXPECT_EQ(key->keyInForce(), "Super+Alt+T");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(type({"key", "ctrl+alt+t"}), 0);
  EXPECT_EQ(type({"key", "super+alt+t"}), 1);
  EXPECT_TRUE(other.grab(kControlAlt)) << "a part of the first is held";
  EXPECT_FALSE(other.grab(kSuperAlt));
  key.reset();
  EXPECT_TRUE(other.grab(kSuperAlt)) << "the key was not given back";
}

TEST_F(HotKeyOnX11, FollowsTheLetterThroughLayouts) {
  start();
  for (const auto& [layout, keyNumber] :
       {std::pair("us(dvorak)", "45"), {"ru", "28"}, {"ru,us", "28"}, {"us(colemak)", "41"}}) {
    setLayout(layout);
    for (const QString number : {"28", "41", "45"})
      EXPECT_EQ(type({"key", "ctrl+alt+" + number}), number == keyNumber) << layout << number.toStdString();
  }
}

}  // namespace
}  // namespace brimle
