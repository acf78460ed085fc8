// The main window: loads its QML, forwards the keys that belong to the whole window, shows and hides it,
// moves it. Owns the objects that QML sees; knows the logic only through the parts of Today.
#pragma once

#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QVariantAnimation>
#include <functional>
#include <memory>

#include "control/alt_tap.h"
#include "control/click_away.h"
#include "control/key_filter.h"
#include "platform/app_window.h"
#include "platform/pasteboard.h"
#include "views/qt/archive_screen.h"
#include "views/qt/menu_button.h"
#include "views/qt/shortcuts_card.h"
#include "views/qt/texts.h"
#include "views/qt/theme.h"
#include "views/qt/today.h"

namespace brimle {

class MainWindow : public QObject, public AppWindow {
  Q_OBJECT

 public:
  /// What the window tells the program.
  struct Reports {
    /// A key press that the rows did not use; whether it was used.
    std::function<bool(const KeyPress&)> key;
    /// The window was moved or resized.
    std::function<void()> frameChanged;
    /// The window was shown, anew as far as the window manager is concerned.
    std::function<void(QWindow&)> shown;
    std::function<void()> closed;
  };

  /// What takes long and needs no tasks: the engine, which loads the window's types on a thread of its own
  /// from now on, and the theme with its typefaces. `ui` must outlive it.
  struct Foundation {
    std::unique_ptr<Theme> theme;
    std::unique_ptr<QQmlApplicationEngine> engine;

    explicit Foundation(UIState& ui);
  };

  /// All that the parts refer to, and the clipboard, must outlive the window.
  MainWindow(Today::Parts parts, Pasteboard& pasteboard, Foundation foundation);
  MainWindow(Today::Parts parts, Pasteboard& pasteboard)
      : MainWindow(parts, pasteboard, Foundation(parts.ui)) {}
  ~MainWindow() override;

  Theme& theme() { return *theme_; }
  ShortcutsCard& shortcuts() { return shortcuts_; }
  MenuHost& menus() { return menuButton_; }
  void setReports(Reports reports);

  Rect frame() const override;
  void setFrame(const Rect& frame) override;
  std::vector<Rect> screens() const override;
  void orderFront() override;
  void minimise() override;
  void refreshPaper() override;
  bool edit(EditCommand command) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool actOnRows(EditCommand command);

  // What becomes of events (main_window_events.cpp).
  bool filterEvent(QEvent* event);
  bool handleKey(const QKeyEvent& event);
  bool handleFocusKey(const QKeyEvent& event);
  bool filterKey(const KeyPress& key);
  bool leadToRows(const KeyPress& key);
  bool askForMenu();
  void openMenu();
  bool openMenuByKey();
  void moveFocus(bool forward);
  bool focusedControlTakes(const KeyPress& key) const;
  void leaveEditor(const QMouseEvent& press);
  bool pasteTooLong(const std::string& text);
  RowScreen& rows();
  KeyboardPlace keyboardPlace() const;

  Store& store_;
  KeyFilter keys_;
  ClickAway clickAway_;
  AltTap altTap_;
  const std::unique_ptr<Theme> theme_;
  Texts texts_;
  Today today_;
  ArchiveScreen archive_;
  const std::unique_ptr<QQmlApplicationEngine> engine_;
  ShortcutsCard shortcuts_;
  MenuButton menuButton_;
  QQuickWindow* window_ = nullptr;
  QVariantAnimation resizing_;
  QRect shownAt_;  ///< where the window was when it was last hidden
  Reports reports_;
};

}  // namespace brimle
