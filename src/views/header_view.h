// What the window's header says: the title and the count, of today or of the archive while that is shown.
#pragma once

#include <string>

#include "prefs/ui_state.h"
#include "views/archive_view.h"
#include "views/content_view.h"

namespace brimle {

struct HeaderLook {
  std::string title;
  ContentView::Count count;
  std::string tomorrowLabel;    ///< empty where nothing is shown
  std::string tomorrowTooltip;  ///< the tasks of tomorrow, one a line
};

HeaderLook headerLook(const ContentView& content, const ArchiveView& archive, const UIState& ui);

}  // namespace brimle
