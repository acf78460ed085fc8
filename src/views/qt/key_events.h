// Qt's key events as the key tables see them: the one place where the desktop's keys and modifiers are
// reduced.
#pragma once

#include <QKeyEvent>
#include <optional>

#include "control/alt_tap.h"
#include "control/keys.h"

namespace brimle {

/// Command is Ctrl, Option is Alt, Control is Super. Num Lock and the number pad are left out.
Modifiers modifiersOf(Qt::KeyboardModifiers modifiers);

/// Letters count by what they type; on a keyboard whose letters are not Latin, by where they are on a Latin
/// one. Digits always count by where they are, for some keyboards type them with Shift only.
KeyPress keyPressOf(const QKeyEvent& event);

/// Whether the press would type something that can be seen.
bool isTyping(const QKeyEvent& event);

/// What an event of the window means to a tap of Alt; nothing where it leaves the tap as it is.
std::optional<AltTap::Input> altInputOf(const QEvent& event);

}  // namespace brimle
