#include "platform/desktop/qt_desktop.h"

#include <QApplication>

namespace brimle {

void QtDesktop::beep() {
  QApplication::beep();
}

}  // namespace brimle
