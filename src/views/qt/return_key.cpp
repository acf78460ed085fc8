#include "views/qt/return_key.h"

#include <QKeyEvent>

namespace brimle {

void ReturnKey::setField(QQuickItem* field) {
  if (field_ == field) return;
  if (field_) field_->removeEventFilter(this);
  field_ = field;
  if (field_) field_->installEventFilter(this);
  emit fieldChanged();
}

bool ReturnKey::eventFilter(QObject* watched, QEvent* event) {
  if (watched != field_ || event->type() != QEvent::KeyPress) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return false;
  // The key is the input method's; one that it lets through neither commits nor breaks the line.
  if (field_->property("inputMethodComposing").toBool()) return true;
  if (key->modifiers().testFlag(Qt::ShiftModifier)) return false;
  if (!key->isAutoRepeat()) emit commit(key->modifiers().testFlag(Qt::AltModifier));
  return true;
}

}  // namespace brimle
