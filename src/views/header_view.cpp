#include "views/header_view.h"

#include "i18n/counts.h"
#include "i18n/i18n.h"

namespace brimle {

HeaderLook headerLook(const ContentView& content, const ArchiveView& archive, const UIState& ui) {
  HeaderLook look;
  if (!ui.showingArchive()) {
    return {content.dateLine(), content.count(), content.tomorrowLabel(), content.tomorrowTooltip()};
  }
  look.title = I18n::t(ui.archiveViewingFuture() ? "Future days" : "Past days");
  if (const std::size_t found = archive.matchCount(); found > 0) {
    look.count.text = I18n::tasksCount(static_cast<long long>(found));
  }
  return look;
}

}  // namespace brimle
