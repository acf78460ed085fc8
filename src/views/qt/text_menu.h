// The context menu of a text field: undo, redo, cut, copy, paste, select all. Opened by a right click, the Menu
// key or Shift+F10. Acts through the field, by its keys.
#pragma once

#include <QPointF>

#include "views/qt/field_watch.h"

namespace brimle {

class TextMenu : public FieldWatch {
  Q_OBJECT
  QML_ELEMENT

 public:
  TextMenu();

 protected:
  bool sees(QEvent& event) override;

 private:
  bool openAt(const QPointF& place);
  bool openByKey(const QKeyEvent& key);
};

}  // namespace brimle
