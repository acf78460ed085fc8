#include "views/qt/return_key.h"

#include <QKeyEvent>

namespace brimle {

bool ReturnKey::keyPressed(const QKeyEvent& key) {
  if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) return false;
  // The key is the input method's; one that it lets through neither commits nor breaks the line.
  if (field()->property("inputMethodComposing").toBool()) return true;
  if (key.modifiers().testFlag(Qt::ShiftModifier)) return false;
  if (!key.isAutoRepeat()) emit commit(key.modifiers().testFlag(Qt::AltModifier));
  return true;
}

}  // namespace brimle
