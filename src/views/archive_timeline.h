// The archive as one timeline of rows: the days still to come, the boundary of today, the past days.
//
// A flat list, made from the store's lists and a search text; each row has a key of its own, so that a view
// can keep its place and animate what changes. Two archived days of one date are two days here.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "model/store.h"

namespace brimle {

struct TimelineRow {
  enum class Kind {
    futureDay,   ///< heading of a day to come
    futureTask,  ///< a scheduled task
    boundary,    ///< "Today"
    nothing,     ///< what stands where there are no past days to show
    pastDay,     ///< heading of an archived day
    pastTask     ///< an archived entry
  };

  Kind kind;
  Uuid key;  ///< the entry's id, or one derived from what the heading stands for
  /// The day and the place in it of an archived entry; the day of a past heading.
  std::shared_ptr<const ArchiveDay> day;
  std::size_t index = 0;  ///< in the scheduled list, or in the day's items
};

/// The rows, in order. `query` is the search text as typed; it narrows the past days only.
std::vector<TimelineRow> archiveTimeline(const Store& store, std::string_view query);

/// Where the boundary stands among the rows.
std::size_t boundaryRow(const std::vector<TimelineRow>& rows);

}  // namespace brimle
