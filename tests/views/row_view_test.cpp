// A row of today's list: its editors of the text and the notes, and its menu.
#include "views/row_view.h"

#include "i18n/dates.h"
#include "views/view_fixture.h"

namespace brimle {
namespace {

using RowViewTest = ViewTest;

TEST_F(RowViewTest, EditsATextInPlace) {
  expect("A B",
         {"edit:A edit:B write:A=\tx -> edit:B => \tx' B", "edit:A write:A=\t\xFFx\n end:A -> => \uFFFDx' B",
          "edit:B write:A=\tx end:A -> edit:B => x' B",
          "edit:A write:A=\tx blur:B -> edit:A => \tx' B; blur:A -> => x' B; write:A=\ty blur:A -> => \ty' B",
          "edit:Z write:Z=x end:Z ->"});
  expect("A/m/n B", {"edit:A.1 edit:A -> note:A.1; edit:B -> edit:B note:A.1"});
}

TEST_F(RowViewTest, DeletesATaskWhoseTextIsClearedWithTheSelectionItIsIn) {
  expect("A B C", {"click:A click:cmd+B edit:A write:A=\t\u00A0 end:A -> @B >B => C",
                   "click:B edit:A write:A= blur:A -> B @B >B => B C",
                   "click:A edit:A write:A= end:A -> @A >A => B C"});
}

TEST_F(RowViewTest, SendsATaskWhoseTextEndsInADateToThatDayPinned) {
  expect(
      "A*^/n B",
      {"click:A click:cmd+B edit:A write:A=_call_>20/6_ end:A -> B @B >B => B | | 20:call'*!^/n",
       "edit:A write:A=x_>_2026-06-20 blur:A -> => B | | 20:x'*!^/n",
       "edit:A write:A=_>20/6 end:A -> => >20/6'*^/n B", "edit:A write:A=x_>fri end:A -> => x >fri'*^/n B"});
  start("A");
  play("edit:A write:A=x_>20/6");
  const int saves = files.replaces(kFile);
  play("end:A");
  EXPECT_EQ(files.replaces(kFile), saves + 1) << "no save lacks the task";
}

TEST_F(RowViewTest, HintsAtTheDayOfADateToken) {
  start("A");
  EXPECT_EQ(row->dateHint("x >20/6 !") + archive->dateHint(">20/6") + row->dateHint("x >3 marzo"), "");
  I18n::setLang("es");
  EXPECT_EQ(row->dateHint("x >3 marzo"), "→ " + prettyDay("2027-03-03"));
  EXPECT_EQ(archive->dateHint("x >20/6"), "→ " + prettyDay("2026-06-20"));
}

TEST_F(RowViewTest, EditsANoteInPlace) {
  expect("A/m/n B/o",
         {"edit:A.1 -> note:A.1; write:A.1=\tx write:A.2=y write:A.-1=z -> note:A.1 => A/m/\tx B/o",
          "edit:A.0 write:A.0=\tx\n end:A.0 -> => A/x/n B/o", "edit:A.0 write:A.0=\n end:A.0 -> => A/n B/o",
          "edit:B.0 write:A.0=\t end:A.0 -> note:B.0 => A/n B/o", "edit:A.0 edit:A.2 ->",
          "edit:A.-1 end:A.-1 end:A.2 ->", "edit:A.0 edit:Z.0 write:Z.0=x end:Z.0 ->"});
}

TEST_F(RowViewTest, ClosesTheOpenNoteBeforeItOpensAnother) {
  expect("A/l/m/n B/o/p", {"edit:A.0 write:A.0=\t edit:A.2 -> note:A.1 => A/m/n B/o/p",
                           "edit:A.2 write:A.2= edit:A.0 -> note:A.0 => A/l/m B/o/p",
                           "edit:A.0 write:A.0= edit:A.0 -> note:A.0 => A/m/n B/o/p",
                           "edit:A.0 write:A.0=\tx edit:A.1 -> note:A.1 => A/x/m/n B/o/p",
                           "edit:A.0 write:A.0= edit:B.1 -> note:B.1 => A/m/n B/o/p"});
}

TEST_F(RowViewTest, ClosesANoteThatLosesTheKeyboardUnlessItHops) {
  expect("A/m/n B/o",
         {"edit:A.0 write:A.0=\tx blur:A.0 -> note:A.0 => A/\tx/n B/o; wait:0 -> => A/x/n B/o",
          "edit:A.0 write:A.0= blur:A.0 edit:A.1 wait:0 -> note:A.0 => A/n B/o",
          "edit:A.1 blur:A.0 blur:B.1 wait:0 -> note:A.1", "edit:A.0 blur:A.0 gone wait:0 -> note:A.0",
          "edit:A.1 up blur:A.0 wait:0 -> note:A.0 hop; wait:0.15 blur:A.0 wait:0 ->"});
  expect("A", {"click:A edit:A write:A=x tab blur:A write:A.0=n -> @A >A note:A.0 hop => x'/n; down blur:A.0 "
               "wait:0.15 -> @A >A"});
}

TEST_F(RowViewTest, AddsANoteAndOpensIt) {
  expect("A/m B/n",
         {"addnote:A write:A.1=x -> note:A.1 => A/m/x B/n", "addnote:A addnote:A -> note:A.1 => A/m/ B/n",
          "edit:A.0 write:A.0= addnote:A -> note:A.0 => A/ B/n",
          "edit:B.0 write:B.0=\tx addnote:A -> note:A.1 => A/m/ B/x", "edit:A.0 addnote:Z -> note:A.0"});
}

TEST_F(RowViewTest, OffersInItsMenuWhatItsTaskIsNot) {
  const auto menu = [&](std::string_view task) {
    start(task);
    std::string text;
    for (const MenuEntry& item : row->menu(idOf("A"))) {
      text += (item.on ? *item.on ? "+" : "-" : "") + item.title;
      text += item.isSeparator() || item.action ? item.destructive ? "?," : "," : ":,";
    }
    return text;
  };
  EXPECT_EQ(menu("A%"),
            "Tick,Add note,Highlight,Pin to top,Move to tomorrow,,Repeat:,+No repeat,-Every day,-Weekdays "
            "only,,Delete?,");
  I18n::setLang("fr");
  EXPECT_EQ(menu("A+!^*%"),
            "Décocher,Ajouter une note,Retirer le surlignage,Désépingler,Reporter à demain,,Répéter:,"
            "-Ne pas répéter,-Tous les jours,+En semaine uniquement,,Supprimer?,");
  EXPECT_EQ(row->menu(idOf("Z")).size(), 0u);
}

TEST_F(RowViewTest, DoesWhatItsMenuSaysToTheSelectionOrToItself) {
  const std::string both = "click:A click:cmd+B menu:A=";
  expect("A B C", {both + "Tick -> A B @B >B => A+ B+ C", both + "Add_note -> A B @B >B note:A.0 => A/ B C",
                   both + "Highlight -> A B @B >B => A^ B^ C", both + "Move_to_tomorrow -> @B >B => C | A B",
                   both + "Delete -> @B >B => C", "menu:B=Pin_to_top -> => B! A C; menu:B=Unpin -> => B A C",
                   both + "Every_day -> A B @B >B => A* B C"});
  expect("A*%", {"menu:A=No_repeat -> => A%; menu:A=Every_day -> => A*; menu:A=Weekdays_only -> => A*%"});
}

}  // namespace
}  // namespace brimle
