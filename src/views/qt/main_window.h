// The main window: loads its QML, forwards the keys that belong to the whole window, shows and hides it.
// Owns the objects that QML sees; knows the logic only through ContentView and Store.
#pragma once

#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QVariantAnimation>
#include <functional>
#include <memory>
#include <optional>

#include "base/rect.h"
#include "control/click_away.h"
#include "control/key_filter.h"
#include "platform/pasteboard.h"
#include "views/qt/archive_screen.h"
#include "views/qt/shortcuts_card.h"
#include "views/qt/texts.h"
#include "views/qt/theme.h"
#include "views/qt/today.h"

namespace brimle {

class MainWindow : public QObject {
  Q_OBJECT

 public:
  /// All that the parts refer to, and the clipboard, must outlive the window.
  MainWindow(Today::Parts parts, Pasteboard& pasteboard);
  ~MainWindow() override;

  Theme& theme() { return theme_; }
  ShortcutsCard& shortcuts() { return shortcuts_; }

  /// Shows the window, in front of others and with the keyboard in the entry field.
  void bringForward(const QByteArray& activationToken = {});

  /// Where the window is, in points of the whole desktop.
  Rect frame() const;
  /// Moves and resizes the window, over a short time where motion is welcome.
  void setFrame(const Rect& frame, bool animated);
  /// What panels leave free of the screen the window is on; nothing where there is no screen.
  std::optional<Rect> visibleScreen() const;

  /// What closing does beyond hiding the window; nothing unless set.
  void onClose(std::function<void()> action) { closed_ = std::move(action); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool handleKey(const QKeyEvent& event);
  bool handleShortcut(const KeyPress& key);
  bool handleFocusKey(const QKeyEvent& event);
  bool filterKey(const KeyPress& key);
  bool askForMenu();
  void moveFocus(bool forward);
  bool pasteSelectionAsTasks();
  bool fieldTakes(const char* property) const;
  KeyboardPlace keyboardPlace() const;

  Store& store_;
  KeyFilter keys_;
  ClickAway clickAway_;
  Signal<>& todayFocusAdd_;
  Theme theme_;
  Texts texts_;
  Today today_;
  ArchiveScreen archive_;
  QQmlApplicationEngine engine_;
  ShortcutsCard shortcuts_;
  QQuickWindow* window_ = nullptr;
  QVariantAnimation resizing_;
  std::function<void()> closed_;
};

}  // namespace brimle
