// What the main window shows of today: the header's date and counts, the rows, and what the entry field does.
// Reads the store and calls its operations; keeps no task data of its own.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/store.h"
#include "platform/time.h"

namespace brimle {

class ContentView {
 public:
  /// The count beside the date.
  struct Count {
    std::string text;      ///< empty: nothing is shown
    bool allDone = false;  ///< drawn as praise, not as a number

    bool operator==(const Count&) const = default;
  };

  /// All references must outlive the view.
  ContentView(Store& store, const Time& time) : store_(store), time_(time) {}

  std::string dateLine() const;
  /// The number of ticked tasks in the archive of today.
  std::size_t clearedTodayCount() const;
  Count count() const;
  /// "tomorrow: 2"; empty where nothing waits for tomorrow.
  std::string tomorrowLabel() const;
  /// The tasks of tomorrow, one a line.
  std::string tomorrowTooltip() const;

  /// Files what the entry field holds; a blank draft is dropped. The field has been cleared before. The row
  /// of today's list where the first of its tasks stands now; nothing where none came onto it.
  std::optional<std::size_t> commitDraft(std::string_view draft, bool toTomorrow);

 private:
  Store& store_;
  const Time& time_;
};

}  // namespace brimle
