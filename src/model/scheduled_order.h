// The order of the scheduled list: by day key, entries of one day in the order they came.
#pragma once

#include <algorithm>
#include <vector>

#include "model/records.h"

namespace brimle {

inline void sortByDate(std::vector<ScheduledItem>& scheduled) {
  std::stable_sort(scheduled.begin(), scheduled.end(),
                   [](const ScheduledItem& a, const ScheduledItem& b) { return a.date < b.date; });
}

}  // namespace brimle
