// What the keyboard and the mouse do in the window, and what it shows of the day.
#include "views/qt/main_window.h"

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QQuickItem>
#include <QQuickTextDocument>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include "app/app_fixture.h"
#include "i18n/dates.h"

namespace brimle {
namespace {

/// The window over a store with the tasks "A B", the keyboard in the entry field. Nothing in it moves.
class MainWindowTest : public AppTest {
 protected:
  void SetUp() override {
    preferences.setString("language", "en");
    openDay("A B");
    view.emplace(*store, time);
    archive.emplace(*store, sel, *ui, time);
    main.emplace(Today::Parts{*store, *view, *archive, *ui, sel, time, todayFocusAdd, links}, pasteboard);
    main->theme().setReduceMotion(true);
    begin(*main, main->menus(), main->shortcuts());
    main->setReports({.key = [this](const KeyPress& key) { return app->performKeyEquivalent(key); },
                      .frameChanged = {},
                      .shown = {},
                      .closed = {}});
    app->focusQuickAdd();
    window = qobject_cast<QQuickWindow*>(QGuiApplication::topLevelWindows().constLast());
    ASSERT_TRUE(window && QTest::qWaitForWindowActive(window));
  }

  std::string state() const { return shown(store->lists()); }

  static std::string nameOf(const QQuickItem* item) {
    auto* interface = QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(item));
    return interface->text(QAccessible::Name).toStdString();
  }

  /// The items that a screen reader would find under a role, and one of the names where some are given, in
  /// order, once there are `count` of them.
  std::vector<QQuickItem*> items(QAccessible::Role role, std::size_t count,
                                 const std::vector<std::string>& named = {}) {
    std::vector<QQuickItem*> found;
    EXPECT_TRUE(QTest::qWaitFor([&] {
      found.clear();
      collect(
          window->contentItem(), [&](QQuickItem* item) { return hasRole(item, role); }, found);
      std::erase_if(found, [&](const QQuickItem* item) {
        return !named.empty() && std::ranges::find(named, nameOf(item)) == named.end();
      });
      return found.size() == count;
    })) << "found "
        << found.size();
    std::ranges::stable_sort(found, {}, [](const QQuickItem* item) { return item->mapToScene({}).y(); });
    return found;
  }

  std::string names(QAccessible::Role role, std::size_t count) {
    std::string text;
    for (QQuickItem* item : items(role, count)) {
      text += nameOf(item) + " ";
    }
    return text;
  }

  std::vector<QQuickItem*> dots(std::size_t count) {
    return items(QAccessible::Button, count, {"Tick", "Untick"});
  }

  /// Presses keys; then the lists, and in brackets what the entry field holds.
  std::string after(std::string_view keys) {
    for (const auto& key : split(keys, ' ')) {
      const QKeyCombination one = QKeySequence::fromString(QString::fromStdString(key))[0];
      QTest::keyClick(window, one.key(), one.keyboardModifiers());
    }
    return state() + " [" + field()->property("text").toString().toStdString() + "]";
  }

  void type(std::string_view text) {
    for (const char c : text) QTest::keyClick(window, c);
  }

  QQuickItem* field() { return items(QAccessible::EditableText, 1).at(0); }

  void click(QQuickItem* item) {
    const QPointF centre = item->mapToScene({item->width() / 2, item->height() / 2});
    QTest::mouseClick(window, Qt::LeftButton, {}, centre.toPoint());
  }

  template <class Predicate>
  static void collect(QQuickItem* item, Predicate isWanted, std::vector<QQuickItem*>& found) {
    if (item->isVisible() && isWanted(item)) found.push_back(item);
    for (QQuickItem* child : item->childItems()) collect(child, isWanted, found);
  }

  SelectionModel sel{time};
  std::optional<ContentView> view;
  std::optional<ArchiveView> archive;
  std::optional<MainWindow> main;
  QQuickWindow* window = nullptr;

 private:
  static bool hasRole(QQuickItem* item, QAccessible::Role role) {
    const auto* interface = QAccessible::queryAccessibleInterface(item);
    return interface && interface->role() == role;
  }
};

TEST_F(MainWindowTest, AddsWhatIsTypedByTheReturnKeyWithItsModifiers) {
  EXPECT_EQ(after("C Return"), "A B c' []");
  EXPECT_EQ(names(QAccessible::ListItem, 3), "A B c ");
  EXPECT_EQ(after("D Alt+Return"), "A B c' | d' []");
  after("E Shift+Return Space");
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QCoreApplication::sendEvent(window, &held);
  EXPECT_EQ(after("N"), "A B c' | d' [e\n n]");
  EXPECT_EQ(after("Enter"), "A B c' e'/n | d' []");
  EXPECT_EQ(after("Space Return"), "A B c' e'/n | d' []");
}

TEST_F(MainWindowTest, LeavesReturnToAnInputMethodThatComposes) {
  const auto compose = [&](const QString& preedit, const QString& committed) {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(committed);
    QCoreApplication::sendEvent(field(), &event);
  };
  after("C");
  compose("にほ", "");
  EXPECT_EQ(after("Return Alt+Return"), "A B [c]");
  compose("", "日本");
  EXPECT_EQ(after("Return"), "A B c日本' []");
}

TEST_F(MainWindowTest, SweepsATickedTaskAfterAPause) {
  const auto sweeping = [&] { return items(QAccessible::ListItem, 2).at(1)->property("sweeping").toBool(); };
  for (const std::size_t row : {0, 0, 1}) click(dots(2).at(row));
  EXPECT_EQ(state(), "A B+");
  EXPECT_EQ(nameOf(dots(2)[0]) + " " + nameOf(dots(2)[1]), "Tick Untick");
  time.advance(Seconds(0.89));
  EXPECT_FALSE(sweeping());
  time.advance(Seconds(0.01));
  EXPECT_TRUE(sweeping());
  time.advance(Seconds(0.32));
  EXPECT_EQ(names(QAccessible::ListItem, 1), "A ");
  EXPECT_EQ(state(), "A |  |  | 15:B+");
}

TEST_F(MainWindowTest, SlidesASweptRowOut) {
  main->theme().setReduceMotion(false);
  QQuickItem* dot = dots(2).at(1);
  const auto place = [&] { return dot->mapToScene({}).x(); };
  const double before = place();
  click(dot);
  time.advance(Seconds(0.9));
  EXPECT_LT(place(), before + 600);
  EXPECT_TRUE(QTest::qWaitFor([&] { return place() == before + 600; }));
}

TEST_F(MainWindowTest, UndoesTypingFirstAndThenWhatWasDoneAndSoundsTheAlertAtTheEnd) {
  EXPECT_EQ(after("C Return D Ctrl+Z"), "A B c' []");
  EXPECT_EQ(after("Ctrl+Shift+Z"), "A B c' [d]");
  EXPECT_EQ(after("Ctrl+Z Ctrl+Z"), "A B []");
  EXPECT_EQ(names(QAccessible::ListItem, 2), "A B ");
  EXPECT_EQ(desktop.beeps, 0);
  EXPECT_EQ(after("Ctrl+Z"), "A B []");
  EXPECT_EQ(desktop.beeps, 1);
}

TEST_F(MainWindowTest, LeavesATextTheWholeLineWhereTheHintOfItsDateTakesTooMuch) {
  click(items(QAccessible::ListItem, 2).at(0));
  QTest::keyClick(window, Qt::Key_Return);
  const auto editor = [&] { return window->activeFocusItem(); };
  ASSERT_TRUE(QTest::qWaitFor([&] { return editor() && editor()->property("text") == "A"; }));
  const double line = editor()->width();
  type(" >20/6");
  EXPECT_LT(editor()->width(), line - 50) << "the hint stands beside the text";
  QTest::keyClick(window, Qt::Key_Home);
  type("a text of some length ");
  EXPECT_GE(editor()->width(), line) << "the hint stands below";
}

TEST_F(MainWindowTest, FollowsTheLanguageOfTheSettings) {
  const auto colours = [this] {
    const auto* document = field()->property("textDocument").value<QQuickTextDocument*>()->textDocument();
    return document->firstBlock().layout()->formats().size();
  };
  type("a >3 mai");  // no day in English
  EXPECT_EQ(colours(), 0);
  ui->setLanguage("de");
  EXPECT_EQ(colours(), 1);
  EXPECT_EQ(names(QAccessible::Heading, 1), dateLine(time.today()) + " ");
  EXPECT_EQ(names(QAccessible::EditableText, 1), I18n::t("Add a task") + " ");

  ui->setShowingArchive(true);
  items(QAccessible::StaticText, 1, {I18n::t("Past days will collect here at midnight.")});
  ui->setLanguage("fr");
  items(QAccessible::StaticText, 1, {I18n::t("Past days will collect here at midnight.")});
}

TEST_F(MainWindowTest, WritesInTheTypefaceAndTheSizesOfTheSettings) {
  const auto fontOf = [](const QQuickItem* item) { return item->property("font").value<QFont>(); };
  const auto task = [&](const QString& text) {
    std::vector<QQuickItem*> found;
    const auto isLabel = [&](QQuickItem* item) {
      return item->inherits("QQuickText") && item->property("text") == text;
    };
    collect(window->contentItem(), isLabel, found);
    return found.at(0);
  };
  ui->setFontDesign("serif");
  const int size = fontOf(task("A")).pixelSize();
  EXPECT_EQ(fontOf(task("A")).family().toStdString(), "serif");
  EXPECT_EQ(fontOf(field()).pixelSize(), size);
  const QFont title = fontOf(items(QAccessible::Heading, 1).at(0));
  EXPECT_EQ(title.pixelSize(), size + 1);
  EXPECT_EQ(title.weight(), QFont::DemiBold);
  main->theme().setTextScale(2);
  EXPECT_EQ(fontOf(task("A")).pixelSize(), 2 * size);
  EXPECT_FALSE(fontOf(task("A")).strikeOut());
  store->setDone({idOf("A")}, true);
  EXPECT_TRUE(fontOf(task("A")).strikeOut());
}

TEST_F(MainWindowTest, OpensTheArchiveAgain) {
  for (const bool shown : {true, false, true}) {
    ui->setShowingArchive(shown);
    EXPECT_EQ(nameOf(field()), shown ? "Search archive" : "Add a task");
  }
}

TEST_F(MainWindowTest, ShowsWhereTheKeyboardIsAsItWalksBackFromTheEntryField) {
  EXPECT_FALSE(main->theme().focusShown());
  after("Backtab Up");
  EXPECT_EQ(names(QAccessible::ListItem, 2), "A B, selected ");
  EXPECT_TRUE(main->theme().focusShown());
  click(items(QAccessible::ListItem, 2).at(0));
  EXPECT_EQ(names(QAccessible::ListItem, 2), "A, selected B ");
  EXPECT_EQ(after("Shift+Down Space"), "A+ B+ []");
  EXPECT_EQ(after("Esc C Return"), "A+ B+ c' []") << "Escape gives the entry field the keyboard";
}

TEST_F(MainWindowTest, LeadsWhatIsTypedToTheFieldAndArrowsThatAreOfNoUseThereToTheRows) {
  EXPECT_EQ(after("Backtab Ctrl+B Alt+B Left Del C"), "A B [c]");
  EXPECT_EQ(after("Up Backspace"), "A B []");
  EXPECT_EQ(names(QAccessible::ListItem, 2), "A B ");
  EXPECT_EQ(after("Up Space"), "A B+ []");
  time.advance(Seconds(1.5));
  ui->setShowingArchive(true);
  EXPECT_EQ(after("B"), "A |  |  | 15:B+ [b]");
  EXPECT_EQ(names(QAccessible::ListItem, 1), "B, ticked ");
  after("Down");
  EXPECT_EQ(names(QAccessible::ListItem, 1), "B, ticked, selected ");
  EXPECT_EQ(after("Esc X Down"), "A |  |  | 15:B+ [bx]");
  EXPECT_TRUE(field()->hasActiveFocus()) << "there is no row to go to";
}

TEST_F(MainWindowTest, TellsWhoseMenuIsOpenAndWhatItsButtonsDo) {
  const auto row = [this] {
    return window->property("today").value<QObject*>()->property("menuRow").toString().toStdString();
  };
  after("Up Shift+F10");
  EXPECT_EQ(row(), idOf("B").string());
  QApplication::activePopupWidget()->close();
  EXPECT_EQ(row(), "");
  const auto buttons = items(QAccessible::Button, 2, {"Close", "Minimise"});
  for (const bool over : {false, true}) {
    QTest::mouseMove(window, over ? buttons[0]->mapToScene({6, 6}).toPoint() : QPoint(150, 200));
    for (const auto* button : buttons) EXPECT_EQ(button->property("glyphShown"), over) << nameOf(button);
  }
}

TEST_F(MainWindowTest, OpensItsMenuByABareTapOfAltOnly) {
  const auto press = QEvent::KeyPress, release = QEvent::KeyRelease;
  struct Case {
    const char* what;
    std::vector<std::pair<QEvent::Type, Qt::Key>> events;
    bool opens;
  };
  const Case cases[] = {
      {"a tap", {{press, Qt::Key_Alt}, {release, Qt::Key_Alt}}, true},
      {"with a key", {{press, Qt::Key_Alt}, {press, Qt::Key_Left}, {release, Qt::Key_Alt}}, false},
      {"a release alone", {{release, Qt::Key_Alt}}, false},
      {"F10", {{press, Qt::Key_F10}}, true},
  };
  for (const Case& one : cases) {
    for (const auto& [type, key] : one.events) {
      QKeyEvent event(type, key,
                      key == Qt::Key_Alt && type == press ? Qt::NoModifier : Qt::KeyboardModifiers());
      QCoreApplication::sendEvent(window, &event);
    }
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    EXPECT_EQ(menu != nullptr, one.opens) << one.what;
    if (!menu) continue;
    EXPECT_EQ(menu->actions().at(1)->menu()->actions().back()->text(),
              "Paste Clipboard as Tasks\tCtrl+Shift+V");
    menu->close();
  }
}

}  // namespace
}  // namespace brimle
