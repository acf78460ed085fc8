// What the screens of rows have in common: they ask their list, which alone knows where a row is drawn, to
// show a row, to open its menu, or to take the keyboard. Those that derive from it name it in full: the tools
// of QML look a base up by the name that is written.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "control/selection_model.h"

namespace brimle {

class RowScreen : public QObject {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  /// Asks the list for the context menu of the row that the keyboard acts on; whether there is one.
  bool askForMenu() {
    const int row = rowOfKeys();
    if (row >= 0) emit menuAsked(row);
    return row >= 0;
  }
  /// Asks the list to scroll to where the selection ends.
  void showLead() {
    if (const int row = leadRow(); row >= 0) emit rowShown(row);
  }

 signals:
  void menuAsked(int row);
  void rowShown(int row);
  /// Text fields are asked to give the keyboard up, as after a click on a row.
  void releaseKeyboard();

 protected:
  /// `sel` must outlive this.
  RowScreen(const SelectionModel& sel, RowList rows) : sel_(sel), list_(rows) {}

  /// The row of this task or entry, or -1.
  virtual int rowOf(const Uuid& id) const = 0;
  /// The row that keys act on, or -1.
  virtual int rowOfKeys() const { return leadRow(); }
  /// The row the selection ends at; -1 where nothing that is visible is selected.
  int leadRow() const {
    const auto lead = selectedLead(sel_.rows(list_));
    return lead ? rowOf(*lead) : -1;
  }

 private:
  const SelectionModel& sel_;
  const RowList list_;
};

}  // namespace brimle
