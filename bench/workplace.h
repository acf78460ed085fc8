// A store at work on sample data, with simulated time and files of the caller's choice.
#pragma once

#include "model/store.h"
#include "platform/simulated/simulated_desktop.h"
#include "platform/simulated/simulated_notification_center.h"
#include "platform/simulated/simulated_time.h"

namespace brimle::bench {

/// Ends the program with a message where what a measurement rests on was not done.
void require(bool done, const char* what);

struct Workplace {
  /// Opens the sample day file in `folder`.
  Workplace(Files& files, const Path& folder);

  /// Changes one task.
  void change();
  /// Lets a ticked task be swept into the archive and puts a new one in its place: two undo steps, or one
  /// where another sweep came just before.
  void sweepOne();
  /// Lets enough time pass for the next change to be an undo step of its own.
  void pause() { time.advance(Seconds(1)); }

  SimulatedTime time;
  SimulatedDesktop desktop;
  SimulatedNotificationCenter notifications{time};
  Store store;
};

}  // namespace brimle::bench
