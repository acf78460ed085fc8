// Which way to the hot key this desktop offers: a key grab on X11, the GlobalShortcuts portal on Wayland.
#pragma once

#include <memory>

#include "platform/hot_key.h"
#include "platform/preferences_store.h"

namespace brimle {

/// The hot key of the desktop that the running QGuiApplication is on, which it must not outlive; no key is
/// ever in force where there is neither way. What the user answers a desktop that asks is kept in
/// `preferences`.
std::unique_ptr<HotKey> hotKeyOfDesktop(PreferencesStore& preferences);

}  // namespace brimle
