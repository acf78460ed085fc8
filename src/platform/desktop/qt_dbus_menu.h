// A menu on the session bus as com.canonical.dbusmenu, for panels that show it in their own way: a status
// item's, or a whole menu bar.
//
// Whoever made it is asked for the entries each time the menu is read or about to be shown. What is chosen is
// done from the event loop, after the desktop has its answer. Names and numbers that make no sense are
// answered with an error; nothing is ever asked of others on the bus.
#pragma once

#include <QDBusContext>
#include <QObject>
#include <functional>
#include <vector>

#include "platform/desktop/qt_dbus_values.h"
#include "platform/desktop/qt_menu_rows.h"

namespace brimle {

class QtDBusMenu : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
  Q_PROPERTY(uint Version READ version CONSTANT)
  Q_PROPERTY(QString Status READ status CONSTANT)
  Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
  Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

 public:
  using Entries = std::vector<MenuEntry>;

  /// Puts the menu on the bus at `path`; `entries` tells what is in it now.
  QtDBusMenu(QString path, std::function<Entries()> entries);
  ~QtDBusMenu() override;

  /// Shows these entries, and tells who shows the menu already.
  void setEntries(const Entries& entries);

  uint version() const { return 3; }
  QString status() const { return QStringLiteral("normal"); }
  QString textDirection() const;
  QStringList iconThemePath() const { return {}; }

 public slots:
  uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                 brimle::DBusMenuLayout& layout);
  QList<brimle::DBusMenuRow> GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames);
  QDBusVariant GetProperty(int id, const QString& name);
  void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
  QList<int> EventGroup(const QList<brimle::DBusMenuEvent>& events);
  bool AboutToShow(int id);
  QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

 signals:
  void LayoutUpdated(uint revision, int parent);
  void ItemsPropertiesUpdated(const QList<brimle::DBusMenuRow>& updatedProps,
                              const QList<brimle::DBusMenuNames>& removedProps);

 private:
  bool refresh();
  const QtMenuRows::Row* rowOrError(int id) const;
  void expectSome(qsizetype known, qsizetype asked) const;
  void handle(const QtMenuRows::Row& row, const QString& eventId);
  DBusMenuLayout layoutOf(int id, int depth, const QStringList& names) const;

  const QString path_;
  const std::function<Entries()> entries_;
  QtMenuRows rows_;
  uint revision_ = 1;  ///< of the layout
  int changes_ = 0;    ///< how often there was something else in the menu
};

}  // namespace brimle
