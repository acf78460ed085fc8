#include "views/qt/field_watch.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace brimle {

void FieldWatch::setField(QQuickItem* field) {
  if (field_ == field) return;
  if (field_) field_->removeEventFilter(this);
  field_ = field;
  if (field_) field_->installEventFilter(this);
  emit fieldChanged();
}

bool FieldWatch::eventFilter(QObject* watched, QEvent* event) {
  if (watched != field_) return false;
  switch (event->type()) {
    case QEvent::KeyPress: return keyPressed(*static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress: return buttonPressed(*static_cast<QMouseEvent*>(event));
    default: return false;
  }
}

}  // namespace brimle
