#include "model/working_user.h"

namespace brimle {
namespace {

/// One who does a hundred things a day, most of them to tasks that stay where they are.
class TwoYears : public WorkingUser {
 protected:
  TwoYears() {
    mostAtOnce = 36;
    habits.insert(
        habits.end(),
        {{40, withTask([this](const auto& task) { rewrite(task); })},
         {20, withTask([this](const auto& task) { giveNote(task); })},
         {20, withTask([this](const auto& task) { store->setHighlight({task.id}, !task.highlighted); })},
         {20, withTask([this](const auto& task) { store->moveBy(task.id, pick(2) ? 1 : -1); })},
         {10, withTask([this](const auto& task) { store->moveToEnd(task.id); })},
         {20, withTask([this](const auto& task) { store->moveItem(task.id, someTask().id); })},
         {20, [this] { goBackAndForth(); }},
         {2, withFiled([this](const auto& entry) { bringBack(entry); })},
         {1, withFiled([this](const auto& entry) { removeFiled(entry); })}});
  }

  TodoItem someTask() {
    const auto visible = store->visibleItems();
    return *visible[pick(visible.size())];
  }

  void rewrite(TodoItem task) {
    task.text = std::to_string(numberOf(task.text)) + std::string(pick(40), ' ') + "\u65e5\"\\";
    store->replace(task.id, task);
  }
  void giveNote(TodoItem task) {
    if (task.notes.size() > 5) task.notes.clear();
    task.notes.push_back("note " + std::to_string(pick(1000)));
    store->replace(task.id, task);
  }

  /// Some steps of undo, and as many of redo, lead back to where it was.
  void goBackAndForth() {
    const Lists here = store->lists();
    const std::size_t steps = 1 + pick(6);
    lookingAway = true;
    for (std::size_t step = 0; step < steps; ++step) store->undo();
    if (store->lists() != here) ++timesBack;
    for (std::size_t step = 0; step < steps; ++step) store->redo();
    lookingAway = false;
    EXPECT_TRUE(store->lists() == here) << state() << " is not " << shown(here);
  }

  /// Does something with an entry filed on a day before the last, of a task that does not repeat.
  std::function<void()> withFiled(std::function<void(const ArchivedItem&)> action) {
    return [this, action] {
      const Archive archive = store->archive();
      if (archive.dayCount() < 2) return;
      auto filedOn = archive.begin();
      std::advance(filedOn, 1 + pick(archive.dayCount() - 1));
      const ArchivedItem entry = filedOn->items[pick(filedOn->items.size())];
      if (!known.at(numberOf(entry.text)).repeats) action(entry);
    };
  }
  void bringBack(const ArchivedItem& entry) {
    Known& ledger = known.at(numberOf(entry.text));
    --ledger.filed;
    ledger.lastFiled = 0;
    store->bringBackMany({entry.id});
  }
  void removeFiled(const ArchivedItem& entry) {
    Known& ledger = known.at(numberOf(entry.text));
    --ledger.filed;
    ledger.deleted = true;
    store->removeArchived({entry.id});
  }

  int timesBack = 0;
};

TEST_F(TwoYears, OfAHundredDeedsADayLoseNothing) {
  begin("2027-09-01 08:00", "Europe/Berlin");
  workUntil("2029-09-01 08:00");
  EXPECT_EQ(daysLived, 732);
  EXPECT_GT(deeds, 73'000);
  EXPECT_GT(known.size(), 3'000u);
  EXPECT_GT(swept, 1'000);
  EXPECT_GT(timesBack, 5'000);
}

}  // namespace
}  // namespace brimle
