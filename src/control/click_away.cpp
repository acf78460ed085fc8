#include "control/click_away.h"

namespace brimle {

void ClickAway::mouseUp(Modifiers modifiers) {
  if (modifiers.has(Modifier::shift) || modifiers.has(Modifier::command)) return;
  const RowList list = ui_.showingArchive() ? RowList::archive : RowList::today;
  if (sel_.rows(list).ids.empty()) return;
  time_.after(Seconds(0), life_.guard([this, list, before = sel_.rows(list).ids] {
    if (sel_.rows(list).ids == before) sel_.setSelected(list, {});
  }));
}

}  // namespace brimle
