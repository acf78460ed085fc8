// The about panel: the icon, the name, the version and the credits of the program.
#pragma once

#include <QDialog>

#include "platform/application.h"
#include "views/qt/theme.h"

namespace brimle {

/// A panel not yet shown, deleted when it is closed; the credits follow the theme, which must outlive it.
QDialog* makeAboutPanel(Theme& theme, const Credits& credits);

}  // namespace brimle
