// The Return key of the entry field: Return commits to today, Alt+Return to tomorrow, Shift+Return breaks the
// line. While an input method composes, the key is its own. Never changes the field's text.
#pragma once

#include "views/qt/field_watch.h"

namespace brimle {

class ReturnKey : public brimle::FieldWatch {
  Q_OBJECT
  QML_ELEMENT

 signals:
  void commit(bool toTomorrow);

 protected:
  bool keyPressed(const QKeyEvent& key) override;
};

}  // namespace brimle
