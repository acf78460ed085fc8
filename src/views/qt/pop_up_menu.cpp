#include "views/qt/pop_up_menu.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QProxyStyle>
#include <QStyleOptionMenuItem>

#include "views/qt/convert.h"
#include "views/qt/theme.h"

namespace brimle {
namespace {

constexpr const char* kDestructive = "destructive";

/// Draws destructive items in the warning colour.
class MenuStyle : public QProxyStyle {
 public:
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const auto* menu = qobject_cast<const QMenu*>(widget);
    const QAction* action = item && menu ? menu->actionAt(item->rect.center()) : nullptr;
    if (element != CE_MenuItem || !action || !action->property(kDestructive).toBool()) {
      return QProxyStyle::drawControl(element, option, painter, widget);
    }
    QStyleOptionMenuItem warning(*item);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
      warning.palette.setColor(role, Theme::create(nullptr, nullptr)->pencilRed());
    }
    QProxyStyle::drawControl(element, &warning, painter, widget);
  }
};

/// The title, in which an ampersand is a letter and not a mnemonic, and its key after a tab.
QString label(const MenuEntry& item) {
  QString text = toQt(item.title).replace(QLatin1Char('&'), QLatin1String("&&"));
  if (item.key == 0) return text;
  const QChar key = QLatin1Char(item.key);
  const Qt::KeyboardModifiers held =
      key.isUpper() ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ControlModifier;
  return text + QLatin1Char('\t') +
         QKeySequence(held | Qt::Key(key.toUpper().unicode())).toString(QKeySequence::NativeText);
}

void fill(QMenu* menu, const std::vector<MenuEntry>& items);

/// `choice` is the group of the items with check marks that stand together, of which one is on.
void addItem(QMenu* menu, const MenuEntry& item, QActionGroup* choice) {
  if (item.isSeparator()) return void(menu->addSeparator());
  if (!item.items.empty()) return fill(menu->addMenu(label(item)), item.items);
  QAction* action = menu->addAction(label(item));
  action->setEnabled(item.action != nullptr);
  action->setProperty(kDestructive, item.destructive);
  action->setCheckable(item.on.has_value());
  action->setChecked(item.on.value_or(false));
  if (item.on) choice->addAction(action);
  if (item.action) QObject::connect(action, &QAction::triggered, action, item.action);
}

void fill(QMenu* menu, const std::vector<MenuEntry>& items) {
  QActionGroup* choice = nullptr;
  for (const MenuEntry& item : items) {
    if (!item.on) choice = nullptr;
    if (item.on && !choice) choice = new QActionGroup(menu);
    addItem(menu, item, choice);
    // One that stands alone is on or off by itself.
    if (choice) choice->setExclusive(choice->actions().size() > 1);
  }
}

}  // namespace

QMenu* popUpMenu(const std::vector<MenuEntry>& items, QPoint place) {
  if (items.empty()) return nullptr;
  auto* menu = new QMenu;
  menu->setAttribute(Qt::WA_DeleteOnClose);
  auto* style = new MenuStyle;
  style->setParent(menu);
  menu->setStyle(style);
  fill(menu, items);
  menu->popup(place);
  if (!Theme::create(nullptr, nullptr)->focusShown()) return menu;
  // Whoever steers by keyboard starts on the first item. By its key, for the call would open the submenu,
  // too.
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  QCoreApplication::sendEvent(menu, &down);
  return menu;
}

}  // namespace brimle
