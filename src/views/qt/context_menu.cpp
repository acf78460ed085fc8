#include "views/qt/context_menu.h"

#include <QActionGroup>
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

  /// Headings show their text in every style.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_Menu_SupportsSections) return true;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

/// An ampersand in a title is a letter, not a mnemonic.
QString plainTitle(const std::string& title) {
  return toQt(title).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void addItem(QMenu* menu, QActionGroup* choice, MenuItem item) {
  if (item.isSeparator()) return void(menu->addSeparator());
  if (item.isHeading()) return void(menu->addSection(plainTitle(item.title)));
  QAction* action = menu->addAction(plainTitle(item.title));
  action->setEnabled(item.enabled);
  action->setProperty(kDestructive, item.destructive);
  action->setCheckable(item.chosen.has_value());
  action->setChecked(item.chosen.value_or(false));
  if (item.chosen) choice->addAction(action);
  QObject::connect(action, &QAction::triggered, action, std::move(item.action));
}

}  // namespace

void popUpMenu(std::vector<MenuItem> items, QPoint place) {
  if (items.empty()) return;
  auto* menu = new QMenu;
  menu->setAttribute(Qt::WA_DeleteOnClose);
  auto* style = new MenuStyle;
  style->setParent(menu);
  menu->setStyle(style);
  auto* choice = new QActionGroup(menu);
  for (MenuItem& item : items) addItem(menu, choice, std::move(item));
  menu->popup(place);
}

}  // namespace brimle
