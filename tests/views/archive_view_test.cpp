// The archive: its timeline, the editor of its scheduled tasks, and its menus.
#include "views/archive_view.h"

#include "base/limits.h"
#include "i18n/dates.h"
#include "views/header_view.h"
#include "views/view_fixture.h"

namespace brimle {
namespace {

using Kind = TimelineRow::Kind;

struct ArchiveViewTest : ViewTest {
  /// The timeline in words: "[Sat 20 Jun] P [Today] [Yesterday] A B". CLDR releases differ over its commas.
  std::string timeline() {
    std::string text;
    keys.clear();
    for (const TimelineRow& one : archive->rows()) {
      keys.push_back(one.key);
      const bool isFuture = one.kind == Kind::futureTask, isPast = one.kind == Kind::pastTask;
      text += isFuture ? store->scheduled().at(one.index).item.text
              : isPast ? one.day->items.at(one.index).text
                       : "[" + archive->title(one) + "]";
      text += " ";
    }
    EXPECT_EQ(std::set(keys.begin(), keys.end()).size(), keys.size()) << text << "has a key twice";
    std::erase(text, ',');
    return text;
  }

  std::vector<Uuid> keys;
};

TEST_F(ArchiveViewTest, IsATimelineOfWhatIsToComeAndWhatHasBeen) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"A", "", "[Today] [Past days will collect here at midnight.] "},
      {"||20:Q 20:P 2027-06-20:R", "z",
       "[Sat 20 Jun] Q P [Sun 20 Jun] R [Today] [Past days will collect here at midnight.] "},
      {"||25:R 20:P 25:S|14:A", "z",
       "[Sat 20 Jun] P [Thu 25 Jun] R S [Today] [No matches] "},  // a file in another order
      {"|||14:A,B+ 13: 12:C", " \t", "[Today] [Yesterday] A B [Friday 12 June] C "},
      {"||20:milk|14:milk,B/x/MILKY 13:C 12:Cumilk", "Milk \t",
       "[Sat 20 Jun] milk [Today] [Yesterday] milk B [Friday 12 June] Cumilk "},
  };
  for (const auto& [lists, query, expected] : rows) {
    start(lists);
    ui.setArchiveQuery(query);
    EXPECT_EQ(timeline(), expected);
    const auto shown = archive->rows();
    EXPECT_EQ(shown.at(boundaryRow(shown)).kind, Kind::boundary);
  }
}

TEST_F(ArchiveViewTest, KeepsTheKeysOfRowsThatStay) {
  start("||20:P|14:Ax 14:B 12:C 14:D");
  I18n::setLang("de");
  EXPECT_EQ(timeline(),
            "[Sa. 20. Juni] P [Heute] [Gestern] Ax [Gestern] B [Freitag 12. Juni] C [Gestern] D ");
  const auto before = keys;
  const TimelineRow heading = archive->rows()[0];
  play("search:b unschedule:P");
  EXPECT_EQ(timeline(), "[Heute] [Gestern] B ");
  EXPECT_EQ(keys, (std::vector{before[2], before[5], before[6]}));
  EXPECT_EQ(archive->title(heading), "") << "its entry has gone";
}

TEST_F(ArchiveViewTest, EditsAScheduledTaskInADraft) {
  expect("||20:P/m/n 22:Q",
         {"open:P -> P:P; draft:=\tx -> P:\tx; commit commit draft:=y commit -> => | | 20:x'/m/n 22:Q",
          "open:P draft:=x cancel commit ->", "open:P draft:=x_>25/6 commit -> => | | 22:Q 25:x'/m/n",
          "open:P draft:=\t commit -> => | | 22:Q", "open:P draft:=x open:Q -> Q:Q => | | 20:x'/m/n 22:Q",
          "open:P draft:=x open:P.1 -> P.1:n => | | 20:x'/m/n 22:Q",
          "open:P unschedule:P draft:=x commit -> => | | 22:Q",
          "open:P.1 draft:=\tx commit -> => | | 20:P/m/x 22:Q",
          "open:P.0 draft:=\t commit -> => | | 20:P/n 22:Q",
          "open:P.1 draft:= open:P.0 -> P.0:m => | | 20:P/m 22:Q",
          "open:P.0 draft:=\t open:P.1 -> P.0:n => | | 20:P/n 22:Q", "open:P.0 draft:=x cancel ->",
          "open:P.2 ->", "open:P.0 open:Z.0 ->", "open:P.0 draft:=x open:Q -> Q:Q => | | 20:P/x/n 22:Q",
          "cancel next back ->"});
}

TEST_F(ArchiveViewTest, WalksThroughAScheduledTaskAndItsNotes) {
  expect("||20:P/l/m 22:Q",
         {"open:P draft:=x next -> P.0:l => | | 20:x'/l/m 22:Q; next -> P.1:m; next -> P.2: => | | "
          "20:x'/l/m/ 22:Q; "
          "next -> => | | 20:x'/l/m 22:Q",
          "open:Q draft:=x_>19/6 next -> Q.0: => | | 19:x'/ 20:P/l/m; draft:=n back -> Q:x => | | 19:x'/n "
          "20:P/l/m",
          "open:P draft:=\t next -> => | | 22:Q", "open:P.0 draft:=\u00A0\t next -> => | | 20:P/m 22:Q",
          "open:P.0 unschedule:P next -> => | | 22:Q",
          "open:P.1 draft:=x back -> P.0:l => | | 20:P/l/x 22:Q; back -> P:P; draft:=y back -> P:y",
          "open:P.0 draft:= back -> P:P => | | 20:P/m 22:Q"});
  expect("||20:P/0/1/2/3/4/5/6/7/8",
         {"addnote:Z ->; show:archive menu:P=Add_note -> P.9: => | | 20:P/0/1/2/3/4/5/6/7/8/; "
          "addnote:P -> P.9:; draft:=9 next -> => | | 20:P/0/1/2/3/4/5/6/7/8/9; addnote:P ->"});
}

TEST_F(ArchiveViewTest, DoesWhatItsMenusSay) {
  expect("T||20:P/n|14:A,B 13:C",
         {"show:archive click:A menu:P=Move_to_today -> A @A >A => T P/n | | | 14:A,B 13:C",
          "show:archive click:A menu:P=Delete -> A @A >A => T | | | 14:A,B 13:C",
          "show:archive click:C click:shift+A menu:B=Bring_back_to_today -> @C >A => T A' B' C' | | 20:P/n",
          "show:archive click:C menu:A=Bring_back_to_today -> C @C >C => T A' | | 20:P/n | 14:B 13:C",
          "show:archive click:B click:shift+A menu:A=Delete -> @B >A => T | | 20:P/n | 13:C"});
  start("||20:P|14:A");
  std::string titles;
  for (const TimelineRow& one : archive->rows()) {
    for (const MenuEntry& item : archive->menu(one)) titles += item.title + ",";
  }
  EXPECT_EQ(titles, "Add note,Move to today,,Delete,Bring back to today,,Delete,");
}

TEST_F(ArchiveViewTest, EditsNothingThatIsTooLongToBeShownWhole) {
  const std::string text(kLongestShown + 1, 'x'), task = text + "/" + text;
  start(task + "||20:" + task);
  const Uuid id = store->items()[0].id, entry = store->scheduled()[0].id;
  row->beginEdit(id);
  row->beginNoteEdit(id, 0);
  archive->beginEdit(entry);
  archive->beginNoteEdit(entry, 0);
  EXPECT_FALSE(sel->editingID() || sel->noteEditingID() || archive->editor());
}

TEST_F(ArchiveViewTest, IsNamedAndCountedInTheHeader) {
  start("A B+ | T U | | 14:X,Y 13:Z");
  const ContentView content(*store, time);
  const std::pair<const char*, std::string> rows[] = {
      {"tick:B", dateLine(time.today()) + ";2 tasks;tomorrow: 2;T\nU"},
      {"show:archive", "Past days;3 tasks;;"},
      {"search:y future", "Future days;1 task;;"},
      {"search:w", "Future days;;;"},
      {"show:today tick:A tick:B wait:2", dateLine(time.today()) + ";all done!;tomorrow: 2;T\nU"}};
  for (const auto& [script, header] : rows) {
    play(script);
    const auto [title, count, label, tooltip] = headerLook(content, *archive, ui);
    EXPECT_EQ(title + ";" + count.text + (count.allDone ? "!;" : ";") + label + ";" + tooltip, header);
  }
}

}  // namespace
}  // namespace brimle
