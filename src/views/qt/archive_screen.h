// The archive's view for QML: the timeline, the search, the gestures on its rows and the editors of scheduled
// tasks. Decides nothing itself.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "control/row_commands.h"
#include "views/archive_view.h"
#include "views/qt/timeline_model.h"

namespace brimle {

class ArchiveScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT)
  Q_PROPERTY(bool showing READ showing WRITE setShowing NOTIFY changed)
  Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY changed)
  Q_PROPERTY(int boundary READ boundary NOTIFY rowsChanged)

 public:
  /// All references must outlive this.
  ArchiveScreen(Store& store, SelectionModel& sel, UIState& ui, ArchiveView& view);

  QAbstractItemModel* rows() { return &rows_; }
  bool showing() const { return ui_.showingArchive(); }
  void setShowing(bool showing) { ui_.setShowingArchive(showing); }
  QString query() const;
  void setQuery(const QString& query);
  int boundary() const { return rows_.boundary(); }

  /// How far the boundary stands below the top of what is visible, in points.
  Q_INVOKABLE void boundaryMoved(double distance);
  Q_INVOKABLE void select(const QString& key, int modifiers);
  Q_INVOKABLE void openMenu(const QString& key);

  Q_INVOKABLE void beginEdit(const QString& key);
  Q_INVOKABLE void beginNoteEdit(const QString& key, int index);
  Q_INVOKABLE QString dateHint(const QString& text) const;
  Q_INVOKABLE void setDraft(const QString& draft);
  Q_INVOKABLE void commit() { view_.commit(); }
  Q_INVOKABLE void cancel() { view_.cancel(); }
  Q_INVOKABLE void walkDown() { view_.walkDown(); }
  Q_INVOKABLE void walkUp() { view_.walkUp(); }

 signals:
  void changed();
  void rowsChanged();
  void releaseKeyboard();

 private:
  void refresh();

  Store& store_;
  UIState& ui_;
  ArchiveView& view_;
  ArchiveCommands commands_;
  TimelineModel rows_;
  bool shown_ = false;
  std::string query_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace brimle
