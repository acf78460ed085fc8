// Puts a window on all workspaces. On X11 by the window manager's protocol (Extended Window Manager Hints,
// _NET_WM_DESKTOP); Wayland leaves it to the compositor, and nothing is done there.
#pragma once

#include <QWindow>

namespace brimle {

/// To be called after each time the window was shown: a window manager forgets it while the window is hidden.
void showOnAllWorkspaces(QWindow& window);

}  // namespace brimle
