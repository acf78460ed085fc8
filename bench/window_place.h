// The program's window on the display at hand, over a store at work on sample data.
#pragma once

#include <QQuickItem>
#include <QQuickWindow>

#include <chrono>

#include "platform/simulated/journal.h"
#include "platform/simulated/memory_files.h"
#include "platform/simulated/simulated_pasteboard.h"
#include "platform/simulated/simulated_preferences_store.h"
#include "platform/simulated/simulated_services.h"
#include "views/qt/main_window.h"
#include "workplace.h"

namespace brimle::bench {

class WindowPlace {
 public:
  /// Shows the window over an archive of this age and waits until it has the keyboard.
  explicit WindowPlace(int years);

  /// The seconds from `act`, which changes what the window shows, to the end of the frame that shows it. The
  /// window was at rest before.
  template <class Act>
  double secondsToFrame(Act act) {
    settle();
    return secondsToNextFrame(act);
  }
  /// The same right after another frame, as in a motion.
  template <class Act>
  double secondsToNextFrame(Act act) {
    const int before = frames_;
    const auto start = clock();
    act();
    waitForFrameAfter(before);
    return std::chrono::duration<double>(lastFrame_ - start).count();
  }
  void press(Qt::Key key);
  double secondsToKey(Qt::Key key);
  double secondsToKey(char character);
  /// From when the button is let go.
  double secondsToClick(QQuickItem& item);

  // The first visible item of a class, or with a text. They end the program where there is none.
  QQuickItem& ofClass(const char* className);
  QQuickItem& withText(const QString& text);

 private:
  /// Stands still while other programs have the processor that this one wants.
  static std::chrono::nanoseconds clock();
  void settle();
  void waitForFrameAfter(int count);
  MemoryFiles& filesWithDayFile(int years);

  MemoryFiles files_;
  Workplace place_;
  SimulatedPreferencesStore preferences_;
  SimulatedPasteboard pasteboard_;
  Journal journal_;
  SimulatedLinkOpener links_{journal_};
  UIState ui_{preferences_, {}};
  SelectionModel sel_;
  Signal<> todayFocusAdd_;
  ContentView content_;
  ArchiveView archive_;
  MainWindow main_;
  QQuickWindow* window_ = nullptr;
  int frames_ = 0;
  std::chrono::nanoseconds lastFrame_{};
};

}  // namespace brimle::bench
