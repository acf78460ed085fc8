// Today's view for QML: properties of ContentView and its gestures. Decides nothing itself.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "base/signal.h"
#include "prefs/ui_state.h"
#include "views/content_view.h"
#include "views/qt/task_list_model.h"

namespace brimle {

class Today : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QAbstractItemModel* tasks READ tasks CONSTANT)
  Q_PROPERTY(QString dateLine READ dateLine NOTIFY changed)
  Q_PROPERTY(QString count READ count NOTIFY changed)
  Q_PROPERTY(bool allDone READ allDone NOTIFY changed)
  Q_PROPERTY(QString tomorrowLabel READ tomorrowLabel NOTIFY changed)
  Q_PROPERTY(QString tomorrowTooltip READ tomorrowTooltip NOTIFY changed)

 public:
  /// All references must outlive this object.
  Today(Store& store, ContentView& view, UIState& ui);

  QAbstractItemModel* tasks() { return &tasks_; }
  QString dateLine() const;
  QString count() const;
  bool allDone() const;
  QString tomorrowLabel() const;
  QString tomorrowTooltip() const;

  Q_INVOKABLE void commit(const QString& draft, bool toTomorrow);
  Q_INVOKABLE void toggle(const QString& taskId);

 signals:
  void changed();
  /// The entry field is asked to take the keyboard.
  void focusAdd();

 private:
  ContentView& view_;
  TaskListModel tasks_;
  Subscription store_;
  Subscription settings_;
};

}  // namespace brimle
