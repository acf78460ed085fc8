// The rows that the window shows of today's list.
#include "views/qt/task_list_model.h"

#include <QAbstractItemModelTester>
#include <random>

#include "model/store_fixture.h"
#include "views/row_text.h"

namespace brimle {
namespace {

using TaskListModelTest = StoreTest;

/// The rows as the model gives them, in the notation of the store's lists.
std::string shownRows(const TaskListModel& model) {
  std::string text;
  for (int row = 0; row < model.rowCount(); ++row) {
    const auto read = [&](int role) { return model.data(model.index(row), role); };
    text += read(TaskListModel::textRole).toString().toStdString();
    text += read(TaskListModel::doneRole).toBool() ? "+" : "";
    text += read(TaskListModel::highlightedRole).toBool() ? "^" : "";
    text += read(TaskListModel::sweepingRole).toBool() ? "~" : "";
    for (const QString& note : read(TaskListModel::notesRole).toStringList())
      text += "/" + note.toStdString();
    text += " ";
  }
  return text;
}

TEST_F(TaskListModelTest, StaysInStepWithTheStore) {
  std::mt19937 random(15);
  const auto any = [&](const auto& list) { return std::string(list[random() % std::size(list)]); };
  const char* starts[] = {"A B*/n C^ D! E+ R*+# W*% X Y", "A A B C A | T", ""};  // two of one identity, too
  const char* verbs[] = {"tick", "untick", "mark", "delete",  "defer",   "pin",      "move",
                         "end",  "undo",   "redo", "add x !", "later y", "wait 0.5", "wait 30000"};
  const char* names[] = {"A", "B", "C", "D", "E", "R", "W", "X", "Y"};
  for (int round = 0; round < 30; ++round) {
    open(document(starts[round % 3]));
    const SelectionModel sel(time);
    TaskListModel model(*store, sel);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int step = 0; step < 60; ++step) {
      run(any(verbs) + " " + any(names) + " " + any(names));
      model.refresh();
      std::string expected;
      for (const TodoItem* task : store->visibleItems()) {
        expected += task->text + (task->done ? "+" : "") + (task->highlighted ? "^" : "") +
                    (store->sweepingIDs().contains(task->id) ? "~" : "") + joined(task->notes, "") + " ";
      }
      ASSERT_EQ(shownRows(model), expected) << "round " << round << " step " << step;
    }
  }
}

TEST_F(TaskListModelTest, ShowsLongTextsInPartAndNeverEditsThose) {
  open(document("A"));
  TodoItem task = store->items()[0];
  task.text = std::string(2 * kLongestShown, 'x');
  task.notes = {"", "n", "m"};
  store->replace(task.id, task);
  SelectionModel sel(time);
  sel.setEditingID(task.id);
  sel.setNoteEditingID(task.id);
  sel.setNoteEditingIndex(1);
  const TaskListModel model(*store, sel);
  EXPECT_EQ(shownRows(model), shownText(task.text) + "//n/m ");
  EXPECT_FALSE(model.data(model.index(0), TaskListModel::editingRole).toBool());
  EXPECT_EQ(model.data(model.index(0), TaskListModel::noteEditingRole).toInt(), 1);
  EXPECT_EQ(model.data(model.index(0), TaskListModel::idRole).toString().toStdString(), task.id.string());
}

}  // namespace
}  // namespace brimle
