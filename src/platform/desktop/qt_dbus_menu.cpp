#include "platform/desktop/qt_dbus_menu.h"

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QGuiApplication>
#include <QSet>
#include <utility>

namespace brimle {
namespace {

void registerTypes() {
  qDBusRegisterMetaType<DBusMenuRow>();
  qDBusRegisterMetaType<QList<DBusMenuRow>>();
  qDBusRegisterMetaType<DBusMenuLayout>();
  qDBusRegisterMetaType<DBusMenuNames>();
  qDBusRegisterMetaType<QList<DBusMenuNames>>();
  qDBusRegisterMetaType<DBusMenuEvent>();
  qDBusRegisterMetaType<QList<DBusMenuEvent>>();
  qDBusRegisterMetaType<QList<QStringList>>();
}

/// Those of these names; all where no name is given.
QVariantMap named(const QVariantMap& properties, const QStringList& names) {
  if (names.isEmpty()) return properties;
  QVariantMap some;
  for (const auto& [name, value] : properties.asKeyValueRange()) {
    if (names.contains(name)) some[name] = value;
  }
  return some;
}

}  // namespace

QtDBusMenu::QtDBusMenu(QString path, std::function<Entries()> entries)
    : path_(std::move(path)), entries_(std::move(entries)) {
  registerTypes();
  QDBusConnection::sessionBus().registerObject(path_, this,
                                               QDBusConnection::ExportAllSlots |
                                                   QDBusConnection::ExportAllProperties |
                                                   QDBusConnection::ExportAllSignals);
}

QtDBusMenu::~QtDBusMenu() {
  QDBusConnection::sessionBus().unregisterObject(path_);
}

void QtDBusMenu::setEntries(const Entries& entries) {
  const QtMenuRows::Change change = rows_.assign(entries);
  if (!change.any()) return;
  ++changes_;
  if (change.layout) return emit LayoutUpdated(++revision_, 0);
  QList<DBusMenuRow> updated;
  for (const int id : change.properties) updated.append({id, rows_.row(id)->properties});
  emit ItemsPropertiesUpdated(updated, {});
}

QString QtDBusMenu::textDirection() const {
  return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

uint QtDBusMenu::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                           DBusMenuLayout& layout) {
  refresh();
  if (rowOrError(parentId)) layout = layoutOf(parentId, recursionDepth, propertyNames);
  return revision_;
}

/// Those that are there, each once however often it was named; all where none is named.
QList<DBusMenuRow> QtDBusMenu::GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames) {
  const QSet<int> wanted(ids.begin(), ids.end());
  QList<DBusMenuRow> rows;
  for (const int id : rows_.ids()) {
    if (wanted.isEmpty() || wanted.contains(id))
      rows.append({id, named(rows_.row(id)->properties, propertyNames)});
  }
  return rows;
}

QDBusVariant QtDBusMenu::GetProperty(int id, const QString& name) {
  const QtMenuRows::Row* row = rowOrError(id);
  if (!row) return {};
  const QVariant value = row->properties.value(name);
  if (!value.isValid()) sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such property"));
  return QDBusVariant(value);
}

void QtDBusMenu::Event(int id, const QString& eventId, const QDBusVariant&, uint) {
  if (const QtMenuRows::Row* row = rowOrError(id)) handle(*row, eventId);
}

QList<int> QtDBusMenu::EventGroup(const QList<DBusMenuEvent>& events) {
  QList<int> unknown;
  for (const DBusMenuEvent& event : events) {
    const QtMenuRows::Row* row = rows_.row(event.id);
    row ? handle(*row, event.kind) : unknown.append(event.id);
  }
  expectSome(events.size() - unknown.size(), events.size());
  return unknown;
}

bool QtDBusMenu::AboutToShow(int id) {
  const bool hasChanged = refresh();
  return rowOrError(id) && hasChanged;
}

QList<int> QtDBusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) {
  const bool hasChanged = refresh();
  QList<int> known;
  for (const int id : ids) (rows_.row(id) ? known : idErrors).append(id);
  expectSome(known.size(), ids.size());
  return hasChanged ? known : QList<int>();
}

/// Asks what is in the menu now; whether that is something else than before.
bool QtDBusMenu::refresh() {
  const int before = changes_;
  setEntries(entries_());
  return changes_ != before;
}

/// Null where there is none of that number; then the call's answer is an error.
const QtMenuRows::Row* QtDBusMenu::rowOrError(int id) const {
  const QtMenuRows::Row* row = rows_.row(id);
  if (!row) sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such row"));
  return row;
}

/// A call about several rows is answered with an error where none of them is there.
void QtDBusMenu::expectSome(qsizetype known, qsizetype asked) const {
  if (known == 0 && asked > 0) sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such rows"));
}

void QtDBusMenu::handle(const QtMenuRows::Row& row, const QString& eventId) {
  if (eventId == QLatin1String("clicked") && row.action)
    QMetaObject::invokeMethod(this, row.action, Qt::QueuedConnection);
}

/// A negative depth is that of the whole menu.
DBusMenuLayout QtDBusMenu::layoutOf(int id, int depth, const QStringList& names) const {
  const QtMenuRows::Row& row = *rows_.row(id);
  DBusMenuLayout layout{id, named(row.properties, names), {}};
  if (depth == 0) return layout;
  const int below = depth < 0 ? depth : depth - 1;
  for (const int child : row.children)
    layout.children.append(QDBusVariant(QVariant::fromValue(layoutOf(child, below, names))));
  return layout;
}

}  // namespace brimle
