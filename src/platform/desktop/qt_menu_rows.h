// The entries of a menu as com.canonical.dbusmenu has them: rows with numbers and properties, told apart by
// those alone. The row 0 is the menu itself.
//
// Numbers stay while the rows keep their kinds, so that a desktop which shows a menu from a copy can name
// what was chosen. When they do not, all rows are numbered anew: no number ever means another row.
#pragma once

#include <QList>
#include <QVariantMap>
#include <functional>
#include <map>
#include <vector>

#include "platform/menu.h"

namespace brimle {

class QtMenuRows {
 public:
  struct Row {
    QVariantMap properties;  ///< all that the protocol has for such a row, be it of the usual value
    QList<int> children;
    std::function<void()> action;
  };
  struct Change {
    bool layout = false;    ///< there are other rows now
    QList<int> properties;  ///< else those that changed
    bool any() const { return layout || !properties.isEmpty(); }
  };

  /// Takes these entries in the place of those before.
  Change assign(const std::vector<MenuEntry>& entries);

  /// Null where there is none of that number.
  const Row* row(int id) const;
  QList<int> ids() const;

 private:
  using Rows = std::map<int, Row>;

  static Rows numbered(const std::vector<MenuEntry>& entries, int next);
  static void number(Rows& rows, int parent, const std::vector<MenuEntry>& entries, int& next);
  bool sameKinds(const Rows& rows) const;

  Rows rows_{{0, {}}};
  int first_ = 1;  ///< the number after that of the menu itself
};

}  // namespace brimle
