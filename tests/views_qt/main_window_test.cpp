#include "views/qt/main_window.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QQuickItem>
#include <QQuickTextDocument>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include "app/app_fixture.h"
#include "i18n/dates.h"
#include "i18n/i18n.h"
#include "model/store_fixture.h"
#include "platform/simulated/simulated_pasteboard.h"
#include "platform/simulated/simulated_preferences_store.h"

namespace brimle {
namespace {

/// The window over a store with the tasks "A B", the keyboard in the entry field. Nothing in it moves.
class MainWindowTest : public StoreTest {
 protected:
  void SetUp() override {
    open(document("A B"));
    view.emplace(*store, time);
    archive.emplace(*store, sel, ui, time);
    main.emplace(Today::Parts{*store, *view, *archive, ui, sel, time, todayFocusAdd, links}, pasteboard);
    main->theme().setReduceMotion(true);
    app.emplace(
        AppDelegate::Ports{time, desktop, preferences, pasteboard, center, application, *main, main->menus(),
                           status, hotKey, loginItem, updates, main->shortcuts(), links},
        *store, ui, todayFocusAdd, "help@brimle.invalid");
    main->setReports({.key = [this](const KeyPress& key) { return app->performKeyEquivalent(key); },
                      .frameChanged = {},
                      .shown = {},
                      .closed = [this] { ++closed; }});
    app->finishedLaunching();
    app->focusQuickAdd();
    window = qobject_cast<QQuickWindow*>(QGuiApplication::topLevelWindows().constLast());
    ASSERT_TRUE(window && QTest::qWaitForWindowActive(window));
  }
  void TearDown() override { I18n::setLang("en"); }

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
      collect(window->contentItem(), role, found);
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

  /// Presses a key that opens a menu and chooses an item of it; whether there is one.
  bool chooses(QKeyCombination key, const QString& title) {
    QTest::keyClick(window, key.key(), key.keyboardModifiers());
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return false;
    const QList<QAction*> actions = menu->actions();
    const auto found = std::ranges::find(actions, title, &QAction::text);
    const bool there = found != actions.end();
    if (there) (*found)->trigger();
    menu->close();
    return there;
  }

  void click(QQuickItem* item) {
    const QPointF centre = item->mapToScene({item->width() / 2, item->height() / 2});
    QTest::mouseClick(window, Qt::LeftButton, {}, centre.toPoint());
  }

  SimulatedPreferencesStore preferences;
  SimulatedPasteboard pasteboard;
  UIState ui{preferences, {}};
  SelectionModel sel{time};
  Signal<> todayFocusAdd;
  std::optional<ContentView> view;
  std::optional<ArchiveView> archive;
  std::optional<MainWindow> main;
  Journal journal;
  JournalCenter center{journal, time, files};
  SimulatedApplication application{journal};
  SimulatedStatusItem status;
  SimulatedHotKey hotKey;
  SimulatedLoginItem loginItem{journal};
  SimulatedUpdateController updates{journal};
  SimulatedLinkOpener links{journal};
  std::optional<AppDelegate> app;
  int closed = 0;
  QQuickWindow* window = nullptr;

 private:
  static void collect(QQuickItem* item, QAccessible::Role role, std::vector<QQuickItem*>& found) {
    const auto* interface = QAccessible::queryAccessibleInterface(item);
    if (item->isVisible() && interface && interface->role() == role) found.push_back(item);
    for (QQuickItem* child : item->childItems()) collect(child, role, found);
  }
};

TEST_F(MainWindowTest, AddsWhatIsTypedByTheReturnKeyWithItsModifiers) {
  EXPECT_EQ(names(QAccessible::ListItem, 2), "A B ");
  EXPECT_EQ(after("C Return"), "A B c' []");
  EXPECT_EQ(names(QAccessible::ListItem, 3), "A B c ");
  EXPECT_EQ(after("D Alt+Return"), "A B c' | d' []");
  after("E Shift+Return Space");
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QCoreApplication::sendEvent(window, &held);
  EXPECT_EQ(after("N"), "A B c' | d' [e\n n]");
  EXPECT_EQ(after("Enter"), "A B c' e'/n | d' []");
  EXPECT_EQ(after("Space Return"), "A B c' e'/n | d' []");
  expectSaved();
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

TEST_F(MainWindowTest, TicksATaskByItsDotAndSweepsItAfterAPause) {
  const auto dot = [&](std::size_t row) { return dots(2).at(row); };
  const auto sweeping = [&] { return items(QAccessible::ListItem, 2).at(1)->property("sweeping").toBool(); };
  for (const std::size_t row : {0, 0, 1}) click(dot(row));
  EXPECT_EQ(state(), "A B+");
  expectSaved();
  EXPECT_EQ(nameOf(dot(0)) + " " + nameOf(dot(1)), "Tick Untick");
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

TEST_F(MainWindowTest, DarkensAWordWhileThePointerIsOverIt) {
  const QQuickItem* word = items(QAccessible::Button, 1, {"Archive"}).at(0);
  const auto colour = [&] { return word->property("color").value<QColor>().rgba(); };
  const QPoint over = word->mapToScene({4, 4}).toPoint();
  const QPoint beside = over + QPoint(0, 100);
  const Theme& theme = main->theme();
  QTest::mouseMove(window, over);
  EXPECT_EQ(colour(), theme.primary().rgba());
  QTest::mouseClick(window, Qt::LeftButton, {}, over);
  QTest::mouseMove(window, beside);
  EXPECT_EQ(colour(), theme.secondary().rgba());
}

TEST_F(MainWindowTest, UndoesTypingFirstAndThenWhatWasDone) {
  EXPECT_EQ(after("C Return D Ctrl+Z"), "A B c' []");
  EXPECT_EQ(after("Ctrl+Shift+Z"), "A B c' [d]");
  EXPECT_EQ(after("Ctrl+Z Ctrl+Z"), "A B []");
  EXPECT_EQ(names(QAccessible::ListItem, 2), "A B ");
}

TEST_F(MainWindowTest, RedoesWhatWasUndoneAndSoundsTheAlertAtTheEnd) {
  EXPECT_EQ(after("C Return Ctrl+Z"), "A B []");
  EXPECT_EQ(after("Ctrl+Shift+Z"), "A B c' []");
  EXPECT_EQ(names(QAccessible::ListItem, 3), "A B c ");
  EXPECT_EQ(desktop.beeps, 0);
  EXPECT_EQ(after("Ctrl+Shift+Z"), "A B c' []");
  EXPECT_EQ(desktop.beeps, 1);
}

TEST_F(MainWindowTest, TurnsPastedLinesIntoTasks) {
  pasteboard.text = "C\n\tn\nD\n";
  EXPECT_EQ(after("Ctrl+V"), "A B C'/n D' []");
  pasteboard.text = "one line";
  QGuiApplication::clipboard()->setText("one line");
  EXPECT_EQ(after("Ctrl+V"), "A B C'/n D' [one line]");
  pasteboard.text = std::string(100'000, 'x');
  after("Ctrl+V");
  EXPECT_EQ(store->items().size(), 5u) << "too long for a field";
}

TEST_F(MainWindowTest, EditsATaskAndItsNotesInPlace) {
  const auto doubleClick = [&](QQuickItem* row) {
    const QPoint place = row->mapToScene({row->width() / 2, 12}).toPoint();
    QTest::mouseDClick(window, Qt::LeftButton, {}, place);
  };
  const auto focused = [&](const char* text) {
    return QTest::qWaitFor([&] {
      const QQuickItem* item = window->activeFocusItem();
      return item && item->inherits("QQuickTextInput") && item->property("text").toString() == text;
    });
  };
  doubleClick(items(QAccessible::ListItem, 2).at(1));
  ASSERT_TRUE(focused("B"));
  type(" b");
  EXPECT_EQ(state(), "A B b'");
  QTest::keyClick(window, Qt::Key_Tab);
  ASSERT_TRUE(focused(""));
  type(" n");
  QTest::keyClick(window, Qt::Key_Up);
  ASSERT_TRUE(focused("B b"));
  EXPECT_EQ(state(), "A B b'/n");
  type(" >20/6");
  QTest::keyClick(window, Qt::Key_Return);
  EXPECT_EQ(state(), "A |  | 20:B b'!/n");
  EXPECT_EQ(names(QAccessible::ListItem, 1), "A ");
  expectSaved();
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

TEST_F(MainWindowTest, SelectsByClicksAndWalksByKeys) {
  click(items(QAccessible::ListItem, 2).at(0));
  EXPECT_EQ(names(QAccessible::ListItem, 2), "A, selected B ");
  QTest::keyClick(window, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(names(QAccessible::ListItem, 2), "A, selected B, selected ");
  QTest::keyClick(window, Qt::Key_Space);
  EXPECT_EQ(state(), "A+ B+");
  QTest::keyClick(window, Qt::Key_Escape);
  EXPECT_EQ(after("C Return"), "A+ B+ c' []") << "Escape gives the entry field the keyboard";
}

TEST_F(MainWindowTest, FollowsTheLanguageOfTheSettings) {
  for (const char* language : {"ja", "de", "en"}) {
    ui.setLanguage(language);
    EXPECT_EQ(names(QAccessible::Heading, 1), dateLine(time.today()) + " ");
    EXPECT_EQ(names(QAccessible::EditableText, 1), I18n::t("Add a task") + " ");
  }
}

TEST_F(MainWindowTest, FollowsTheLanguageInAnArchiveThatIsShownAndInADraft) {
  const auto colours = [this] {
    const auto* document = field()->property("textDocument").value<QQuickTextDocument*>()->textDocument();
    return document->firstBlock().layout()->formats().size();
  };
  type("a >3 mai");  // no day in English
  EXPECT_EQ(colours(), 0);
  ui.setLanguage("de");
  EXPECT_EQ(colours(), 1);

  ui.setShowingArchive(true);
  items(QAccessible::StaticText, 1, {I18n::t("Past days will collect here at midnight.")});
  ui.setLanguage("fr");
  items(QAccessible::StaticText, 1, {I18n::t("Past days will collect here at midnight.")});
}

TEST_F(MainWindowTest, HidesByItsCloseButtonAndComesForwardAgain) {
  click(items(QAccessible::Button, 1, {"Close"}).at(0));
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(closed, 1);
  app->focusQuickAdd();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  EXPECT_EQ(after("C Return"), "A B c' []");
}

TEST_F(MainWindowTest, FoldsToItsHeaderAndUnfoldsForWhoeverWantsToType) {
  const auto height = [&](int wanted) { return QTest::qWaitFor([&] { return window->height() == wanted; }); };
  QQuickItem* title = items(QAccessible::Heading, 1).at(0);
  QTest::mouseDClick(window, Qt::LeftButton, {}, title->mapToScene({20, 8}).toPoint());
  time.runUntilIdle();
  EXPECT_TRUE(height(34));
  EXPECT_EQ(names(QAccessible::ListItem, 0), "") << "the header is all there is";
  EXPECT_LE(title->mapToScene({0, title->height()}).y(), 34);
  EXPECT_GE(title->mapToScene({}).x(), 62);
  app->focusQuickAdd();
  time.runUntilIdle();
  EXPECT_TRUE(height(400));
  EXPECT_EQ(after("C Return"), "A B c' []");
}

TEST_F(MainWindowTest, IsSteeredByTheKeyboardAlone) {
  const auto focused = [&] {
    const auto* interface = QAccessible::queryAccessibleInterface(window->activeFocusItem());
    return interface ? interface->text(QAccessible::Name).toStdString() : "";
  };
  std::string stops;
  for (int stop = 0; stop < 7; ++stop) {
    QTest::keyClick(window, Qt::Key_F6);
    stops += focused() + ", ";
  }
  EXPECT_EQ(stops, "Close, Minimise, Menu, " + view->dateLine() + ", Archive, Task list, Add a task, ");
  EXPECT_TRUE(main->theme().focusShown());
  QTest::keyClick(window, Qt::Key_Backtab);
  EXPECT_EQ(focused(), "Task list");
  QTest::keyClick(window, Qt::Key_Up);
  EXPECT_EQ(names(QAccessible::ListItem, 2), "A B, selected ");
  EXPECT_TRUE(chooses(Qt::Key_Menu, "Pin to top"));
  EXPECT_EQ(state(), "B! A");
  EXPECT_TRUE(chooses(QKeyCombination(Qt::SHIFT, Qt::Key_F10), "Delete"));
  EXPECT_EQ(state(), "A");
}

TEST_F(MainWindowTest, OpensItsMenuByABareTapOfAltOnly) {
  struct Case {
    const char* what;
    std::vector<std::pair<QEvent::Type, Qt::Key>> events;
    bool opens;
  };
  const auto press = QEvent::KeyPress, release = QEvent::KeyRelease;
  const Case cases[] = {
      {"a tap", {{press, Qt::Key_Alt}, {release, Qt::Key_Alt}}, true},
      {"with a key",
       {{press, Qt::Key_Alt}, {press, Qt::Key_Left}, {release, Qt::Key_Left}, {release, Qt::Key_Alt}},
       false},
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
    EXPECT_EQ(menu->actions().size(), 6);
    EXPECT_EQ(menu->actions().at(0)->menu()->actions().back()->text(), "Quit Brimle\tCtrl+Q");
    EXPECT_EQ(menu->actions().at(1)->menu()->actions().front()->text(), "New Task\tCtrl+N");
    EXPECT_EQ(menu->actions().at(1)->menu()->actions().back()->text(),
              "Paste Clipboard as Tasks\tCtrl+Shift+V");
    menu->close();
  }
}

}  // namespace
}  // namespace brimle
