// What the screens of rows have in common: they ask their list, which alone knows where a row is drawn, to
// show a row, to open its menu, or to take the keyboard, and tell it whose menu is open. Those that derive
// from it name it in full: the tools of QML look a base up by the name that is written.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QPointF>
#include <vector>

#include "control/selection_model.h"
#include "platform/menu.h"

namespace brimle {

class RowScreen : public QObject {
  Q_OBJECT
  QML_ANONYMOUS
  /// The id of the task or entry whose context menu is open, or nothing.
  Q_PROPERTY(QString menuRow READ menuRow NOTIFY menuRowChanged)

 public:
  QString menuRow() const { return menuRow_; }
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
  void menuRowChanged();
  void menuAsked(int row);
  void rowShown(int row);
  /// Text fields are asked to give the keyboard up, as after a click on a row.
  void releaseKeyboard();
  /// The field beneath the rows is asked to take the keyboard, for what is typed.
  void typingBegan();

 protected:
  /// `sel` must outlive this.
  RowScreen(const SelectionModel& sel, RowList rows) : sel_(sel), list_(rows) {}

  /// Opens the context menu of a task or entry at a place on the screen.
  void openRowMenu(const QString& id, const std::vector<MenuEntry>& items, const QPointF& place);

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
  void setMenuRow(const QString& id);

  const SelectionModel& sel_;
  const RowList list_;
  QString menuRow_;
};

}  // namespace brimle
