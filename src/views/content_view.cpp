#include "views/content_view.h"

#include <algorithm>

#include "base/text.h"
#include "control/row_commands.h"
#include "i18n/counts.h"
#include "i18n/dates.h"
#include "i18n/i18n.h"

namespace brimle {

std::string ContentView::dateLine() const {
  return brimle::dateLine(time_.today());
}

std::size_t ContentView::clearedTodayCount() const {
  const std::string today = dayKey(time_.today());
  const auto day = std::ranges::find(store_.archive(), today, &ArchiveDay::date);
  if (day == store_.archive().end()) return 0;
  return static_cast<std::size_t>(std::count_if(day->items.begin(), day->items.end(),
                                                [](const ArchivedItem& entry) { return entry.completed; }));
}

ContentView::Count ContentView::count() const {
  if (const std::size_t open = store_.remaining(); open > 0) {
    return {I18n::tasksCount(static_cast<long long>(open)), false};
  }
  if (clearedTodayCount() > 0) return {I18n::t("all done"), true};
  return {};
}

std::string ContentView::tomorrowLabel() const {
  if (store_.tomorrow().empty()) return {};
  return I18n::t("tomorrow") + ": " + std::to_string(store_.tomorrow().size());
}

std::string ContentView::tomorrowTooltip() const {
  std::string lines;
  for (const TodoItem& task : store_.tomorrow()) {
    if (!lines.empty()) lines += '\n';
    lines += task.text;
  }
  return lines;
}

std::optional<std::size_t> ContentView::commitDraft(std::string_view draft, bool toTomorrow) {
  if (trimmedLines(draft).empty()) return std::nullopt;
  const RowOrder before = visibleIDs(store_);
  const IdSet known(before.begin(), before.end());
  store_.addLines(draft, toTomorrow);
  const RowOrder now = visibleIDs(store_);
  const auto added = std::ranges::find_if_not(now, [&](const Uuid& id) { return known.contains(id); });
  if (added == now.end()) return std::nullopt;
  return static_cast<std::size_t>(added - now.begin());
}

}  // namespace brimle
