#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <cstdlib>

#include "platform/desktop/qt_hot_key.h"
#include "platform/simulated/simulated_preferences_store.h"

namespace brimle {
namespace {

constexpr int kPatience = 60'000;  // milliseconds
constexpr int kT = 28;             // the key's number where the layout is Latin
constexpr int kControlAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1,
              kSuperAlt = XCB_MOD_MASK_4 | XCB_MOD_MASK_1;

void run(const char* program, const QStringList& arguments) {
  ASSERT_EQ(QProcess::execute(program, arguments), 0) << program;
}

xcb_window_t rootOf(xcb_connection_t* connection) {
  return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

/// Another program on the same display.
struct OtherProgram {
  xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
  ~OtherProgram() { xcb_disconnect(connection); }

  /// False where the key has another owner.
  bool grab(int modifiers) const {
    const auto cookie = xcb_grab_key_checked(connection, false, rootOf(connection), modifiers, kT,
                                             XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_generic_error_t* error = xcb_request_check(connection, cookie);
    std::free(error);
    return !error;
  }
};

/// What the X server told Qt.
class Events : public QAbstractNativeEventFilter {
 public:
  int keyPresses = 0;

  Events() { qGuiApp->installNativeEventFilter(this); }

  /// Returns when Qt has seen, and the program has done, all that the X server had to tell by now.
  void settle() {
    xcb_connection_t* connection =
        qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, 0, window, rootOf(connection), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t mark{};
    mark.response_type = XCB_CLIENT_MESSAGE;
    mark.format = 32;
    mark.window = expected_ = window;
    xcb_send_event(connection, false, window, 0, reinterpret_cast<const char*>(&mark));
    xcb_flush(connection);
    ASSERT_TRUE(QTest::qWaitFor([this] { return expected_ == 0; }, kPatience));
    QCoreApplication::processEvents();
    xcb_destroy_window(connection, window);
  }

  bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    keyPresses += event->response_type == XCB_KEY_PRESS;
    const bool isMessage = (event->response_type & 0x7f) == XCB_CLIENT_MESSAGE;
    if (isMessage && reinterpret_cast<const xcb_client_message_event_t*>(event)->window == expected_)
      expected_ = 0;
    return false;
  }

 private:
  xcb_window_t expected_ = 0;
};

class HotKeyOnX11 : public testing::Test {
 protected:
  ~HotKeyOnX11() override { setLayout("us"); }

  void start() {
    key = hotKeyOfDesktop(preferences);
    key->install([this](const std::string&) { ++presses; });
  }
  /// How often the hot key was told of while keys were typed; in the notation of xdotool.
  int type(const QStringList& arguments) {
    const int before = presses;
    run("xdotool", arguments);
    events.settle();
    return presses - before;
  }
  void setLayout(const char* layout) {
    run("setxkbmap", {layout});
    events.settle();
  }

  Events events;
  SimulatedPreferencesStore preferences;
  int presses = 0;
  std::unique_ptr<HotKey> key;
};

TEST_F(HotKeyOnX11, IsToldWhateverTheLocksAre) {
  start();
  EXPECT_EQ(key->keyInForce(), "Ctrl+Alt+T");
  EXPECT_EQ(type({"key", "ctrl+alt+t"}), 1);
  for (const char* lock : {"Num_Lock", "Caps_Lock", "Num_Lock", "Caps_Lock"})
    EXPECT_EQ(type({"key", lock, "ctrl+alt+t"}), 1) << lock;
  EXPECT_EQ(type({"key", "ctrl+t", "alt+t", "ctrl+alt+shift+t", "ctrl+alt+r", "super+alt+t"}), 0);
}

TEST_F(HotKeyOnX11, IsToldOnceWhileItIsHeld) {
  start();
  run("xdotool", {"keydown", "ctrl", "keydown", "alt", "keydown", "t"});
  EXPECT_TRUE(QTest::qWaitFor([this] { return events.keyPresses >= 3; }, kPatience));
  type({"keyup", "t", "keyup", "alt", "keyup", "ctrl"});
  EXPECT_EQ(presses, 1);
  EXPECT_EQ(type({"key", "ctrl+alt+t", "ctrl+alt+t"}), 2);
}

TEST_F(HotKeyOnX11, IsTheSecondWhereAnotherProgramOwnsTheFirst) {
  const OtherProgram other;
  ASSERT_TRUE(other.grab(kControlAlt | XCB_MOD_MASK_LOCK));
  start();
  EXPECT_EQ(key->keyInForce(), "Super+Alt+T");
  EXPECT_EQ(type({"key", "ctrl+alt+t"}), 0);
  EXPECT_EQ(type({"key", "super+alt+t"}), 1);
  EXPECT_TRUE(other.grab(kControlAlt)) << "a part of the first is held";
  EXPECT_FALSE(other.grab(kSuperAlt));
  key.reset();
  EXPECT_TRUE(other.grab(kSuperAlt)) << "the key was not given back";
}

TEST_F(HotKeyOnX11, IsNoneWhereBothAreOwnedAndReturnsWithTheNextKeyboard) {
  auto other = std::make_unique<OtherProgram>();
  ASSERT_TRUE(other->grab(kControlAlt) && other->grab(kSuperAlt));
  start();
  int changes = 0;
  const Subscription observing = key->observe([&] { ++changes; });
  EXPECT_EQ(key->keyInForce(), "");
  EXPECT_EQ(type({"key", "ctrl+alt+t", "super+alt+t"}), 0);
  other.reset();
  setLayout("de");
  EXPECT_EQ(key->keyInForce(), "Ctrl+Alt+T");
  EXPECT_EQ(changes, 1);
}

TEST_F(HotKeyOnX11, FollowsTheLetterThroughLayouts) {
  const std::vector<std::pair<const char*, QString>> layouts{
      {"de", "28"}, {"us(dvorak)", "45"}, {"ru", "28"}, {"ru,us", "28"}, {"us(colemak)", "41"}, {"us", "28"}};
  start();
  for (const auto& [layout, keyNumber] : layouts) {
    setLayout(layout);
    EXPECT_EQ(type({"key", "ctrl+alt+" + keyNumber}), 1) << layout;
    EXPECT_EQ(type({"key", "ctrl+alt+28"}), keyNumber == "28") << layout;
  }
}

}  // namespace
}  // namespace brimle
