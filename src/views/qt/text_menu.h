// The context menu of a text field: undo, redo, cut, copy, paste, select all. Opened by a right click, the
// Menu key or Shift+F10; acts through the field.
#pragma once

#include <QPointF>

#include "views/qt/field_watch.h"

namespace brimle {

class TextMenu : public brimle::FieldWatch {
  Q_OBJECT
  QML_ELEMENT

 public:
  TextMenu();

 protected:
  bool keyPressed(const QKeyEvent& key) override;
  bool buttonPressed(const QMouseEvent& press) override;

 private:
  bool openAt(const QPointF& place);
};

}  // namespace brimle
