// The archive's view for QML: the timeline, the search, the gestures on its rows and the editors of scheduled
// tasks. Decides nothing itself.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointF>

#include "control/row_commands.h"
#include "views/archive_view.h"
#include "views/qt/row_screen.h"
#include "views/qt/timeline_model.h"

namespace brimle {

class ArchiveScreen : public brimle::RowScreen {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT)
  Q_PROPERTY(bool showing READ showing WRITE setShowing NOTIFY showingChanged)
  Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY changed)
  Q_PROPERTY(int boundary READ boundary NOTIFY rowsChanged)

 public:
  /// All references must outlive this.
  ArchiveScreen(Store& store, SelectionModel& sel, UIState& ui, ArchiveView& view, Signal<>& todayFocusAdd);

  QAbstractItemModel* rows() { return &rows_; }
  bool showing() const { return ui_.showingArchive(); }
  void setShowing(bool showing) { ui_.setShowingArchive(showing); }
  QString query() const;
  void setQuery(const QString& query);
  int boundary() const { return rows_.boundary(); }

  /// How far the boundary stands below the top of what is visible, in points.
  Q_INVOKABLE void boundaryMoved(double distance);
  Q_INVOKABLE void select(const QString& key, int modifiers);
  /// Opens the row's context menu at a place on the screen.
  Q_INVOKABLE void openMenu(const QString& key, const QPointF& place);

  Q_INVOKABLE void remove(const QString& key);
  /// Goes back to today, with the keyboard in the entry field.
  Q_INVOKABLE void leave();

  Q_INVOKABLE void beginEdit(const QString& key);
  Q_INVOKABLE void beginNoteEdit(const QString& key, int index);
  Q_INVOKABLE QString dateHint(const QString& text) const;
  Q_INVOKABLE void setDraft(const QString& draft);
  Q_INVOKABLE void commit() { view_.commit(); }
  Q_INVOKABLE void cancel() { view_.cancel(); }
  Q_INVOKABLE void walkDown() { view_.walkDown(); }
  Q_INVOKABLE void walkUp() { view_.walkUp(); }

  // For the keyboard.
  /// The scheduled task that has the keyboard, or nothing.
  Q_INVOKABLE void setFocusedKey(const QString& key);
  /// The row of the next scheduled task below a row, or above with -1; -1 where there is none.
  Q_INVOKABLE int nextScheduled(int row, int step) const { return rows_.nextScheduled(row, step); }

 signals:
  void showingChanged();
  void changed();
  void rowsChanged();

 private:
  void refresh();
  int rowOf(const Uuid& key) const override { return rows_.rowOf(key); }
  int rowOfKeys() const override;

  Store& store_;
  UIState& ui_;
  SelectionModel& sel_;
  ArchiveView& view_;
  Signal<>& todayFocusAdd_;
  ArchiveCommands commands_;
  TimelineModel rows_;
  bool shown_ = false;
  std::string query_;
  std::string language_;  ///< the setting for which the rows were last told
  QString focusedKey_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace brimle
