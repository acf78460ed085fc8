// What is measured, each operation on an archive of a given age in years.
//
// An operation leaves its results in counters of `state`: the ratio of its time to that of a bare operation,
// which alternates with it so that a machine's slow moments fall on both alike; or an amount. One that cannot
// do its work, because a file cannot be written, ends the program.
#pragma once

#include <benchmark/benchmark.h>

namespace brimle::bench {

inline constexpr char kRatioCounter[] = "ratio";
inline constexpr char kBytesCounter[] = "bytes";
/// Seconds an iteration, without what is not the program's own work: the time inside the system calls of a
/// save.
inline constexpr char kOwnSecondsCounter[] = "own seconds";
inline constexpr char kMemoryRatioCounter[] = "memory ratio";
inline constexpr char kWakeUpsCounter[] = "wake-ups";

struct Operation {
  const char* name;
  void (*run)(benchmark::State& state, int years);
  int iterations;
  int repetitions;
};

// Against the bare save: the day file's bytes from one buffer, by write, fdatasync and rename
// (bench_store.cpp).
extern const Operation kSave;      ///< one change of one task; its own seconds too
extern const Operation kTick;      ///< one task ticked
extern const Operation kAddLines;  ///< 1,000 lines pasted
extern const Operation kRollover;  ///< a day closed and the next opened, with a backup
extern const Operation kUndo;      ///< one step back over a sweep

// In memory (bench_memory.cpp).
extern const Operation kEncode;  ///< the live lists encoded and the pieces laid out; its real time counts
extern const Operation kEncodeGrowth;  ///< the same, against an archive of one year
extern const Operation kUndoMemory;    ///< the bytes that a hundred steps hold which each change the archive
extern const Operation kLoad;  ///< the day file's bytes to records, against a deep copy of the archive's

// The archive's search (bench_search.cpp), once it is prepared; the slowest of several queries.
extern const Operation kSearch;  ///< against finding the query in the same folded bytes; its own seconds too
extern const Operation kPrepareSearch;  ///< folding all texts once; its real time counts

// The real window, painted by the same renderer, on the display at hand (bench_window.cpp): from an event to
// the end of the frame that shows what it did; the seconds of the slowest but one in a hundred, or of the
// middle one.
extern const Operation kOpenArchive;  ///< a click on the archive's button; the middle one
extern const Operation kScroll;       ///< a page of the archive a frame, from end to end
extern const Operation kTypeTask;     ///< a key in the entry field
extern const Operation kWalkList;     ///< Down and Up in today's list
extern const Operation kTypeSearch;   ///< a key in the archive's search

// The program as a process (bench_program.cpp); no years mean empty lists.
extern const Operation kStartUp;  ///< to its first frame, and its memory, against the smallest window's
extern const Operation kIdle;     ///< how often anything wakes it in a minute without a key or click

}  // namespace brimle::bench
