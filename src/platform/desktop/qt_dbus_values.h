// What goes over the bus in the protocols of status items, menus and portals, beyond what Qt knows:
// structures with the operators that write and read them.
//
// Slots and signals must name these types with their namespace, by which Qt looks for them.
#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QStringList>
#include <QVariantMap>
#include <tuple>

namespace brimle {

/// A picture (iiay): its pixels from the top left, each as alpha, red, green and blue.
struct DBusPicture {
  int width = 0, height = 0;
  QByteArray pixels;
  auto fields() { return std::tie(width, height, pixels); }
};

/// (sa(iiay)ss)
struct DBusToolTip {
  QString iconName;
  QList<DBusPicture> pictures;
  QString title, text;
  auto fields() { return std::tie(iconName, pictures, title, text); }
};

/// A row of a menu (ia{sv}).
struct DBusMenuRow {
  int id = 0;
  QVariantMap properties;
  auto fields() { return std::tie(id, properties); }
};

/// A row of a menu with those below it (ia{sv}av), of which each is such a structure again.
struct DBusMenuLayout {
  int id = 0;
  QVariantMap properties;
  QList<QDBusVariant> children;
  auto fields() { return std::tie(id, properties, children); }
};

/// Names of properties that a row of a menu has no more (ias).
struct DBusMenuNames {
  int id = 0;
  QStringList names;
  auto fields() { return std::tie(id, names); }
};

/// What happened to a row of a menu (isvu).
struct DBusMenuEvent {
  int id = 0;
  QString kind;
  QDBusVariant data;
  uint time = 0;
  auto fields() { return std::tie(id, kind, data, time); }
};

template <class Value>
concept DBusStructure = requires(Value value) {
  value.fields();
};

template <DBusStructure Value>
QDBusArgument& operator<<(QDBusArgument& argument, const Value& value) {
  argument.beginStructure();
  std::apply([&](const auto&... fields) { (argument << ... << fields); }, Value(value).fields());
  argument.endStructure();
  return argument;
}

template <DBusStructure Value>
const QDBusArgument& operator>>(const QDBusArgument& argument, Value& value) {
  argument.beginStructure();
  std::apply([&](auto&... fields) { (argument >> ... >> fields); }, value.fields());
  argument.endStructure();
  return argument;
}

}  // namespace brimle
