// Today's view for QML: what ContentView and its rows show, and the gestures on them. Decides nothing itself.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointF>

#include "base/limits.h"
#include "base/signal.h"
#include "control/row_commands.h"
#include "platform/link_opener.h"
#include "prefs/ui_state.h"
#include "views/content_reactions.h"
#include "views/content_view.h"
#include "views/header_view.h"
#include "views/qt/convert.h"
#include "views/qt/row_screen.h"
#include "views/qt/task_list_model.h"
#include "views/row_drag.h"
#include "views/row_view.h"

namespace brimle {

class Today : public brimle::RowScreen {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QAbstractItemModel* tasks READ tasks CONSTANT)
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString count READ count NOTIFY changed)
  Q_PROPERTY(bool allDone READ allDone NOTIFY changed)
  Q_PROPERTY(QString tomorrowLabel READ tomorrowLabel NOTIFY changed)
  Q_PROPERTY(QString tomorrowTooltip READ tomorrowTooltip NOTIFY changed)
  Q_PROPERTY(QString draggingId READ draggingId NOTIFY dragChanged)
  Q_PROPERTY(bool compact READ compact NOTIFY changed)

 public:
  /// What the view is made of; all must outlive it.
  struct Parts {
    Store& store;
    ContentView& content;
    ArchiveView& archive;
    UIState& ui;
    SelectionModel& sel;
    Time& time;
    Signal<>& todayFocusAdd;
    LinkOpener& links;
  };
  explicit Today(Parts parts);

  QAbstractItemModel* tasks() { return &tasks_; }
  QString title() const;
  QString count() const;
  bool allDone() const;
  QString tomorrowLabel() const;
  QString tomorrowTooltip() const;
  QString draggingId() const;
  /// Whether the window is folded to its header.
  bool compact() const { return parts_.ui.compact(); }
  EntryContext entryContext() const { return parts_.store.entryContext(); }

  Q_INVOKABLE void toggleCompact() { parts_.ui.setCompact(!compact()); }

  // The entry field.
  Q_INVOKABLE void commit(const QString& draft, bool toTomorrow);
  Q_INVOKABLE void addFocused() { reactions_.addFocused(); }

  // Rows, by the id of their task.
  Q_INVOKABLE void toggle(const QString& taskId);
  /// A click with the keyboard modifiers that were held (Qt::KeyboardModifiers).
  Q_INVOKABLE void select(const QString& taskId, int modifiers);
  Q_INVOKABLE void togglePin(const QString& taskId);
  Q_INVOKABLE void openLink(const QString& address);
  /// Opens the row's context menu at a place on the screen.
  Q_INVOKABLE void openMenu(const QString& taskId, const QPointF& place);

  // The editors in place.
  Q_INVOKABLE void beginEdit(const QString& taskId);
  Q_INVOKABLE void setText(const QString& taskId, const QString& text);
  Q_INVOKABLE void endEdit(const QString& taskId);
  Q_INVOKABLE void textFocusLost(const QString& taskId);
  Q_INVOKABLE void beginNoteEdit(const QString& taskId, int index);
  Q_INVOKABLE void setNote(const QString& taskId, int index, const QString& text);
  Q_INVOKABLE void endNoteEdit(const QString& taskId, int index);
  Q_INVOKABLE void noteFocusLost(const QString& taskId, int index);
  Q_INVOKABLE QString dateHint(const QString& text) const;

  // Dragging.
  Q_INVOKABLE void beginDrag(const QString& taskId);
  Q_INVOKABLE void dragEntered(const QString& taskId);
  Q_INVOKABLE void endDrag();
  /// Whether a text that is dropped on the entry field goes into it.
  Q_INVOKABLE bool fieldTakes(const QString& text) const {
    return !drag_.draggingID() && isShownWhole(fromQt(text));
  }
  Q_INVOKABLE void dropText(const QString& text);

 signals:
  /// The window's menu is asked for.
  void menuRequested();
  void changed();
  void dragChanged();
  /// The entry field is asked to take the keyboard.
  void focusAdd();

 private:
  int rowOf(const Uuid& id) const override { return tasks_.rowOf(id); }
  void refreshHeader();

  const Parts parts_;
  HeaderLook header_;
  RowView rows_;
  RowCommands commands_;
  RowDrag drag_;
  ContentReactions reactions_;
  TaskListModel tasks_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace brimle
