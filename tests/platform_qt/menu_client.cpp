#include "platform_qt/menu_client.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>

#include "platform/desktop/qt_dbus_values.h"

namespace brimle {
namespace {

constexpr auto kInterface = "com.canonical.dbusmenu";

std::string keysOf(const QVariantMap& properties) {
  std::string keys;
  for (const QVariant& stroke : properties["shortcut"].toList())
    keys += " [" + stroke.toStringList().join('+').toStdString() + "]";
  return keys;
}

std::string rowText(const QVariantMap& properties) {
  if (properties["type"] == "separator") return "-";
  std::string text = properties["label"].toString().toStdString() + keysOf(properties);
  if (properties["toggle-type"] == "checkmark") text = (properties["toggle-state"] == 1 ? "x " : "o ") + text;
  if (properties["disposition"] == "warning") text = "! " + text;
  return properties.value("enabled", true).toBool() ? text : "(" + text + ")";
}

}  // namespace

MenuClient::MenuClient(BusClient& client) : client_(client) {
  QDBusConnection& bus = client_.bus();
  bus.connect({}, {}, kInterface, "LayoutUpdated", this, SLOT(layoutUpdated()));
  bus.connect({}, {}, kInterface, "ItemsPropertiesUpdated", this, SLOT(propertiesUpdated(QDBusMessage)));
}

QVariantList MenuClient::ask(const QString& method, const QVariantList& arguments) {
  return client_.ask(service, path, kInterface, method, arguments);
}

bool MenuClient::isRefused(const QString& method, const QVariantList& arguments) {
  return client_.isRefused(service, path, kInterface, method, arguments);
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
  ids_.push_back(layout[0].toInt());
  rows.push_back(indent + rowText(layout[1].toMap()));
  const bool isSubmenu = layout[1].toMap()["children-display"] == "submenu";
  if (isSubmenu) rows.back() += ':';
  for (const QVariant& child : layout[2].toList()) addRow(child.toList(), indent + "  ", rows);
}

bool MenuClient::open(int id) {
  return ask("AboutToShow", {id}).value(0).toBool();
}

void MenuClient::click(int id) {
  ask("Event", {id, "clicked", QVariant::fromValue(QDBusVariant(0)), 0u});
}

void MenuClient::propertiesUpdated(const QDBusMessage& signal) {
  for (const DBusMenuRow& row : qdbus_cast<QList<DBusMenuRow>>(signal.arguments().value(0)))
    newRows.push_back(rowText(row.properties));
}

}  // namespace brimle
