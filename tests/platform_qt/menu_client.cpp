#include "platform_qt/menu_client.h"

#include <QDBusVariant>
#include <algorithm>

namespace brimle {
namespace {

constexpr auto kInterface = "com.canonical.dbusmenu";

std::string rowText(const QVariantMap& properties) {
  if (properties["type"] == "separator") return "-";
  std::string text = properties["label"].toString().toStdString();
  for (const QVariant& stroke : properties["shortcut"].toList())
    text += " [" + stroke.toStringList().join('+').toStdString() + "]";
  if (properties["toggle-type"] == "checkmark") text = (properties["toggle-state"] == 1 ? "x " : "o ") + text;
  if (properties["disposition"] == "warning") text = "! " + text;
  return properties.value("enabled", true).toBool() ? text : "(" + text + ")";
}

}  // namespace

QVariantList MenuClient::ask(const QString& method, const QVariantList& arguments) {
  return neighbour_.ask(path_, kInterface, method, arguments);
}

bool MenuClient::isRefused(const QString& method, const QVariantList& arguments) {
  return neighbour_.isRefused(path_, kInterface, method, arguments);
}

std::vector<std::string> MenuClient::rows() {
  std::vector<std::string> rows;
  ids_.clear();
  const QVariantList menu = ask("GetLayout", {0, -1, QStringList()}).value(1).toList();
  for (const QVariant& child : menu.value(2).toList()) addRow(child.toList(), "", rows);
  return rows;
}

void MenuClient::addRow(const QVariantList& layout, const std::string& indent,
                        std::vector<std::string>& rows) {
  const QVariantMap properties = layout[1].toMap();
  ids_.push_back(layout[0].toInt());
  rows.push_back(indent + rowText(properties));
  if (properties["children-display"] == "submenu") rows.back() += ':';
  for (const QVariant& child : layout[2].toList()) addRow(child.toList(), indent + "  ", rows);
}

void MenuClient::click(int id) {
  ask("Event", {id, "clicked", QVariant::fromValue(QDBusVariant(0)), 0u});
}

int MenuClient::newLayouts() const {
  return std::ranges::count(neighbour_.heard, "LayoutUpdated", &QDBusMessage::member);
}

std::vector<std::string> MenuClient::newRows() const {
  std::vector<std::string> rows;
  for (const QDBusMessage& signal : neighbour_.heard) {
    if (signal.member() != "ItemsPropertiesUpdated") continue;
    for (const QVariant& row : plainArguments(signal).value(0).toList())
      rows.push_back(rowText(row.toList().value(1).toMap()));
  }
  return rows;
}

}  // namespace brimle
