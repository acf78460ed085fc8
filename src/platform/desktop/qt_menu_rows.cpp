#include "platform/desktop/qt_menu_rows.h"

#include <QStringList>
#include <algorithm>

namespace brimle {
namespace {

const QVariantMap kSubmenu{{"children-display", "submenu"}};

/// As one stroke of one key. Those who show it read the key's own character where it is no letter.
QVariant shortcut(char key) {
  const QChar character = QLatin1Char(key);
  QStringList stroke{"Control"};
  if (character.isUpper()) stroke << "Shift";
  return QVariant::fromValue(QList<QStringList>{stroke << character.toUpper()});
}

/// An underscore in a title is a letter, not the mark of a mnemonic.
QString label(const std::string& title) {
  return QString::fromStdString(title).replace('_', QLatin1String("__"));
}

QVariantMap propertiesOf(const MenuEntry& entry) {
  if (entry.isSeparator()) return {{"type", "separator"}};
  const bool isSubmenu = !entry.items.empty();
  QVariantMap properties = isSubmenu ? kSubmenu : QVariantMap();
  properties["label"] = label(entry.title);
  properties["enabled"] = isSubmenu || entry.action;
  if (entry.key != 0) properties["shortcut"] = shortcut(entry.key);
  if (entry.destructive) properties["disposition"] = "warning";
  if (!entry.on) return properties;
  properties["toggle-type"] = "checkmark";
  properties["toggle-state"] = int(*entry.on);
  return properties;
}

}  // namespace

QtMenuRows::Change QtMenuRows::assign(const std::vector<MenuEntry>& entries) {
  Rows rows = numbered(entries, first_);
  Change change;
  if (!sameKinds(rows)) {
    first_ = std::max(first_, rows_.rbegin()->first + 1);
    rows = numbered(entries, first_);
    change.layout = true;
  } else {
    for (const auto& [id, row] : rows) {
      if (row.properties != rows_.at(id).properties) change.properties << id;
    }
  }
  rows_ = std::move(rows);
  return change;
}

const QtMenuRows::Row* QtMenuRows::row(int id) const {
  const auto found = rows_.find(id);
  return found == rows_.end() ? nullptr : &found->second;
}

QList<int> QtMenuRows::ids() const {
  QList<int> ids;
  for (const auto& [id, row] : rows_) ids << id;
  return ids;
}

QtMenuRows::Rows QtMenuRows::numbered(const std::vector<MenuEntry>& entries, int next) {
  Rows rows{{0, {kSubmenu, {}, {}}}};
  number(rows, 0, entries, next);
  return rows;
}

void QtMenuRows::number(Rows& rows, int parent, const std::vector<MenuEntry>& entries, int& next) {
  for (const MenuEntry& entry : entries) {
    const int id = next++;
    rows[parent].children << id;
    rows[id] = {propertiesOf(entry), {}, entry.action};
    number(rows, id, entry.items, next);
  }
}

/// Rows are of a kind that have the same properties, whatever their values: none ever has to be taken back.
bool QtMenuRows::sameKinds(const Rows& rows) const {
  return std::ranges::equal(rows, rows_, [](const auto& one, const auto& other) {
    return one.first == other.first && one.second.children == other.second.children &&
           one.second.properties.keys() == other.second.properties.keys();
  });
}

}  // namespace brimle
