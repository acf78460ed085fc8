// Sample task data of any age, the same in every run: eight archive entries a day of varied text, some with
// notes, some not ASCII, some that JSON must escape.
#pragma once

#include <string>
#include <vector>

#include "model/day_file.h"

namespace brimle::bench {

/// The day after the newest archived one, which the samples call today.
inline constexpr char kToday[] = "2026-06-15";
inline constexpr int kLiveTasks = 30;

/// The archive of `years` years of 365 days, newest day first.
std::vector<ArchiveDay> sampleDays(int years);

/// Unticked tasks, a few of them repeating, pinned or with notes.
std::vector<TodoItem> sampleTasks(int count);

/// Text to paste: one line a task, or a note of the task above it.
std::string sampleLines(int count);

/// These days as the archive, kLiveTasks tasks on today's list, nothing waiting.
Lists sampleLists(std::vector<ArchiveDay> days);

/// The day file of today that holds these lists.
std::string documentOf(const Lists& lists);

/// The same sample as an archive's records, as lists and as a day file; made when first asked for and kept.
struct Sample {
  std::vector<ArchiveDay> days;
  Lists lists;
  std::string document;
};
const Sample& sample(int years);

}  // namespace brimle::bench
