// The Return key of the entry field: Return commits to today, Alt+Return to tomorrow, Shift+Return breaks the
// line. While an input method composes, the key is its own. Never changes the text.
#pragma once

#include "views/qt/field_watch.h"

namespace brimle {

class ReturnKey : public FieldWatch {
  Q_OBJECT
  QML_ELEMENT

 signals:
  void commit(bool toTomorrow);

 protected:
  bool sees(QEvent& event) override;
};

}  // namespace brimle
