#include "views/qt/context_menu.h"

#include <QActionGroup>
#include <QCursor>
#include <QMenu>

#include "views/qt/convert.h"

namespace brimle {

void popUpMenu(std::vector<MenuItem> items) {
  if (items.empty()) return;
  auto* menu = new QMenu;
  menu->setAttribute(Qt::WA_DeleteOnClose);
  auto* choice = new QActionGroup(menu);
  for (MenuItem& item : items) {
    if (item.isSeparator()) {
      menu->addSeparator();
      continue;
    }
    // An ampersand in a title is a letter, not a mnemonic.
    QAction* action = menu->addAction(toQt(item.title).replace(QLatin1Char('&'), QLatin1String("&&")));
    action->setCheckable(item.chosen.has_value());
    action->setChecked(item.chosen.value_or(false));
    if (item.chosen) choice->addAction(action);
    QObject::connect(action, &QAction::triggered, action, std::move(item.action));
  }
  menu->popup(QCursor::pos());
}

}  // namespace brimle
