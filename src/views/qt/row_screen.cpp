#include "views/qt/row_screen.h"

#include <QMenu>

#include "views/qt/pop_up_menu.h"

namespace brimle {

void RowScreen::openRowMenu(const QString& id, const std::vector<MenuEntry>& items, const QPointF& place) {
  const QMenu* menu = popUpMenu(items, place.toPoint());
  if (!menu) return;
  setMenuRow(id);
  connect(menu, &QMenu::aboutToHide, this, [this] { setMenuRow({}); });
}

void RowScreen::setMenuRow(const QString& id) {
  menuRow_ = id;
  emit menuRowChanged();
}

}  // namespace brimle
