#include "views/qt/field_watch.h"

namespace brimle {

void FieldWatch::setField(QQuickItem* field) {
  if (field_ == field) return;
  if (field_) field_->removeEventFilter(this);
  field_ = field;
  if (field_) field_->installEventFilter(this);
  emit fieldChanged();
}

bool FieldWatch::eventFilter(QObject* watched, QEvent* event) {
  return watched == field_ && sees(*event);
}

}  // namespace brimle
