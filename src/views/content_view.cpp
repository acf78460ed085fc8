#include "views/content_view.h"

#include <algorithm>

#include "base/text.h"
#include "i18n/counts.h"
#include "i18n/dates.h"
#include "i18n/i18n.h"

namespace brimle {

std::string ContentView::dateLine() const {
  return brimle::dateLine(time_.today());
}

std::size_t ContentView::clearedTodayCount() const {
  const std::string today = dayKey(time_.today());
  const auto day = std::find_if(store_.archive().begin(), store_.archive().end(),
                                [&](const ArchiveDay& one) { return one.date == today; });
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

void ContentView::commitDraft(std::string_view draft, bool toTomorrow) {
  if (!trimmedLines(draft).empty()) store_.addLines(draft, toTomorrow);
}

}  // namespace brimle
