#include "views/archive_view.h"

#include "base/limits.h"
#include "i18n/dates.h"
#include "views/header_view.h"
#include "views/view_fixture.h"

namespace brimle {
namespace {

using Kind = TimelineRow::Kind;

struct ArchiveViewTest : ViewTest {
  /// The timeline in words: "#20 P | @14 A B", with - where nothing stands for the past.
  std::string timeline() {
    std::string text;
    keys.clear();
    for (const auto& [kind, key, day, index] : archive->rows()) {
      keys.push_back(key);
      switch (kind) {
        case Kind::futureDay: text += "#" + dayOf(store->scheduled().at(index).date); break;
        case Kind::futureTask:
          text += key == store->scheduled().at(index).id ? store->scheduled()[index].item.text : "?";
          break;
        case Kind::boundary: text += "|"; break;
        case Kind::nothing: text += "-"; break;
        case Kind::pastDay: text += "@" + dayOf(day->date); break;
        case Kind::pastTask: text += key == day->items.at(index).id ? day->items[index].text : "?"; break;
      }
      text += " ";
    }
    EXPECT_EQ(std::set(keys.begin(), keys.end()).size(), keys.size()) << text << "has a key twice";
    return text;
  }

  std::vector<Uuid> keys;
};

TEST_F(ArchiveViewTest, IsATimelineOfWhatIsToComeAndWhatHasBeen) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"A", "", "| - "},
      {"||20:Q 20:P 2027-06-20:R", "", "#20 Q P #2027-06-20 R | - "},
      {"||25:R 20:P 25:S", "", "#20 P #25 R S | - "},  // a file in another order
      {"|||14:A,B+ 13: 12:C", " \t", "| @14 A B @12 C "},
      {"||20:milk|14:milk,B/x/MILKY 13:C 12:Cumilk", "Milk \t", "#20 milk | @14 milk B @12 Cumilk "},
      {"||20:P|14:A 13:B", "z", "#20 P | - "},
      {"|||14:A 14:B 13:C 14:D", "", "| @14 A @14 B @13 C @14 D "}};
  for (const auto& [lists, query, expected] : rows) {
    begin(lists);
    ui.setArchiveQuery(query);
    EXPECT_EQ(timeline(), expected);
    const auto shown = archive->rows();
    EXPECT_EQ(shown.at(boundaryRow(shown)).kind, Kind::boundary);
  }
}

TEST_F(ArchiveViewTest, KeepsTheKeysOfRowsThatStay) {
  begin("||20:P|14:Ax 14:B 13:C");
  EXPECT_EQ(timeline(), "#20 P | @14 Ax @14 B @13 C ");
  const auto before = keys;
  ui.setArchiveQuery("b");
  EXPECT_EQ(timeline(), "#20 P | @14 B ");
  EXPECT_EQ(keys, (std::vector{before[0], before[1], before[2], before[5], before[6]}));
}

TEST_F(ArchiveViewTest, NamesItsDays) {
  for (const char* language : {"en", "de"}) {
    begin("||20:P|14:A 12:B");
    I18n::setLang(language);
    std::string titles;
    for (const TimelineRow& one : archive->rows()) titles += archive->title(one) + ";";
    EXPECT_EQ(titles, futureDayLabel("2026-06-20") + ";;" + std::string(I18n::t("Today")) + ";" +
                          pastDayLabel("2026-06-14", time.today()) + ";;" +
                          pastDayLabel("2026-06-12", time.today()) + ";;");
    const TimelineRow heading = archive->rows()[0], nothing{Kind::nothing, {}, nullptr, 0};
    EXPECT_EQ(archive->title(nothing), I18n::t("No matches"));
    act("unschedule:P");
    EXPECT_EQ(archive->title(heading), "");
    begin("A||20:P");
    EXPECT_EQ(archive->title(nothing), I18n::t("Past days will collect here at midnight."));
  }
}

TEST_F(ArchiveViewTest, EditsAScheduledTaskInADraft) {
  expect("||20:P/m/n 22:Q",
         {"open:P -> P:P; draft:=\tx -> P:\tx; commit commit draft:=y commit -> => | | 20:x'/m/n 22:Q",
          "open:P draft:=x cancel commit ->", "open:P draft:=x_>25/6 commit -> => | | 22:Q 25:x'/m/n",
          "open:P draft:=x_>15/6/26 commit -> => | | 20:x >15/6/26'/m/n 22:Q",
          "open:P draft:=\t commit -> => | | 22:Q", "open:P draft:=x open:Q -> Q:Q => | | 20:x'/m/n 22:Q",
          "open:P draft:=x open:P.1 -> P.1:n => | | 20:x'/m/n 22:Q",
          "open:P draft:=x open:Z -> => | | 20:x'/m/n 22:Q",
          "open:P unschedule:P draft:=x commit -> => | | 22:Q",
          "open:P.1 draft:=\tx commit -> => | | 20:P/m/x 22:Q",
          "open:P.0 draft:=\t commit -> => | | 20:P/n 22:Q",
          "open:P.0 draft:=\t open:P.1 -> P.0:n => | | 20:P/n 22:Q",
          "open:P.1 draft:= open:P.0 -> P.0:m => | | 20:P/m 22:Q",
          "open:P.0 draft:=x open:P.1 -> P.1:n => | | 20:P/x/n 22:Q", "open:P.0 draft:=x cancel ->",
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
          "open:P.0 unschedule:P next -> => | | 22:Q", "open:P.1 unschedule:P back -> => | | 22:Q",
          "open:P.1 draft:=x back -> P.0:l => | | 20:P/l/x 22:Q; back -> P:P; draft:=y back -> P:y",
          "open:P.1 draft:= back -> P.0:l => | | 20:P/l 22:Q",
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
  begin("||20:P|14:A");
  for (const TimelineRow& one : archive->rows()) {
    std::string titles;
    for (const MenuItem& item : archive->menu(one)) titles += item.title + ",";
    EXPECT_EQ(titles, one.kind == Kind::futureTask ? "Add note,Move to today,,Delete,"
                      : one.kind == Kind::pastTask ? "Bring back to today,,Delete,"
                                                   : "");
  }
}

TEST_F(ArchiveViewTest, EditsNothingThatIsTooLongToBeShownWhole) {
  const std::string longest(kLongestShown, 'x');
  const std::string task = longest + "x/" + longest + "/" + longest + "x";
  begin(task + "||20:" + task);
  const Uuid id = store->items()[0].id, entry = store->scheduled()[0].id;
  row->beginEdit(id);
  row->beginNoteEdit(id, 1);
  archive->beginEdit(entry);
  archive->beginNoteEdit(entry, 1);
  EXPECT_FALSE(sel->editingID() || sel->noteEditingID() || archive->editor());
  row->beginNoteEdit(id, 0);
  archive->beginNoteEdit(entry, 0);
  EXPECT_TRUE(sel->noteEditingID() && archive->editor());
}

TEST_F(ArchiveViewTest, IsToldOfInTheHeader) {
  begin("A B+ | T | | 14:X,Y 13:Z");
  const ContentView content(*store, time);
  const auto header = [&](std::string_view script) {
    play(script);
    const auto [title, count, label, tooltip] = headerLook(content, *archive, ui);
    return title + ";" + count.text + (count.allDone ? "!" : "") + ";" + label + ";" + tooltip;
  };
  EXPECT_EQ(header("show:archive"), "Past days;3 tasks;;");
  ui.setArchiveViewingFuture(true);
  EXPECT_EQ(header("search:y"), "Future days;1 task;;");
  EXPECT_EQ(header("search:w"), "Future days;;;");
  EXPECT_EQ(header("show:today"), dateLine(time.today()) + ";1 task;tomorrow: 1;T");
  EXPECT_EQ(header("tick:A wait:2"), dateLine(time.today()) + ";all done!;tomorrow: 1;T");
}

}  // namespace
}  // namespace brimle
