// A program with a window, run as a process of its own with data of its own.
//
// What it does is read from outside: its first frame from the log that Qt writes of the renderer's times, its
// memory and its threads' switches from /proc. It is killed with the object.
#pragma once

#include <sys/types.h>

#include <map>
#include <string>

#include "platform/files.h"

namespace brimle::bench {

class ChildWindow {
 public:
  /// Starts the program, which keeps data, settings and state below `folder`, and waits for its first frame.
  /// Ends this program with a message where none comes.
  ChildWindow(const Path& program, const Path& folder);
  ~ChildWindow();
  ChildWindow(const ChildWindow&) = delete;
  ChildWindow& operator=(const ChildWindow&) = delete;

  /// From its start to its first painted frame.
  double secondsToFrame() const { return secondsToFrame_; }
  /// Its proportional memory now.
  double bytes() const;
  /// How often each of its threads has gone to sleep so far, which a wake-up ends; by the thread's number.
  using Sleeps = std::map<std::string, double>;
  Sleeps sleeps() const;

 private:
  pid_t pid_ = 0;
  int log_ = -1;
  double secondsToFrame_ = 0;
};

}  // namespace brimle::bench
