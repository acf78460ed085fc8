// New tasks: read from text, then filed onto today's list, tomorrow's, or a future day.
#include <algorithm>
#include <iterator>
#include <utility>

#include "base/text.h"
#include "model/scheduled_order.h"
#include "model/store.h"

namespace brimle {

void Store::addLines(std::string_view text, bool toTomorrow) {
  commit(parseLines(toValidUtf8(text), entryContext()), toTomorrow);
}

/// Files entries in their order, each list assigned once. A pinned task goes above all others, so that the
/// last of several stands first.
void Store::commit(std::vector<Entry> entries, bool toTomorrow) {
  std::vector<TodoItem> top, bottom, deferred = tomorrow();
  std::vector<ScheduledItem> sent = scheduled();
  for (Entry& entry : entries) {
    if (entry.sendDate) {
      sent.push_back({Uuid::random(), std::move(*entry.sendDate), std::move(entry.item)});
    } else if (toTomorrow) {
      deferred.push_back(std::move(entry.item));
    } else {
      (entry.item.pinnedTop ? top : bottom).push_back(std::move(entry.item));
    }
  }

  sortByDate(sent);
  std::vector<TodoItem> list(std::make_move_iterator(top.rbegin()), std::make_move_iterator(top.rend()));
  list.insert(list.end(), items().begin(), items().end());
  std::move(bottom.begin(), bottom.end(), std::back_inserter(list));

  const Operation operation(*this);
  if (sent.size() > scheduled().size()) setScheduled(std::move(sent));
  if (deferred.size() > tomorrow().size()) setTomorrow(std::move(deferred));
  if (list.size() > items().size()) setItems(std::move(list));
}

}  // namespace brimle
