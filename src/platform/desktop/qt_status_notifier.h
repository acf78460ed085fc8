// The status item as panels read it on the session bus: org.kde.StatusNotifierItem at its usual path.
//
// It has what it was told to show, and tells panels when that is new; it draws nothing, and never asks who
// reads it. What a panel's user does is reported from the event loop, after the panel has its answer.
#pragma once

#include <QDBusObjectPath>
#include <QImage>
#include <QObject>
#include <QPoint>
#include <functional>

#include "platform/application_id.h"
#include "platform/desktop/qt_dbus_values.h"

namespace brimle {

class QtStatusNotifier : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
  Q_PROPERTY(QString Category READ category CONSTANT)
  Q_PROPERTY(QString Id READ id CONSTANT)
  Q_PROPERTY(QString Title READ title CONSTANT)
  Q_PROPERTY(QString Status READ status CONSTANT)
  Q_PROPERTY(int WindowId READ windowId CONSTANT)
  Q_PROPERTY(QString IconName READ iconName CONSTANT)
  Q_PROPERTY(QList<brimle::DBusPicture> IconPixmap READ iconPixmap NOTIFY NewIcon)
  Q_PROPERTY(brimle::DBusToolTip ToolTip READ toolTip NOTIFY NewToolTip)
  Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
  Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)

 public:
  struct Reports {
    /// A left click, with the token the panel gave for it; empty where it gave none.
    std::function<void(const std::string& token)> click;
    /// A right click at a place on the screen, on a panel that does not show the menu itself.
    std::function<void(QPoint place)> contextMenu;
  };
  static const QString kPath;

  QtStatusNotifier(const QString& menuPath, Reports reports);
  ~QtStatusNotifier() override;

  /// The same picture in several sizes.
  void setIcon(const std::vector<QImage>& pictures);
  void setToolTip(const QString& text);

  QString category() const { return QStringLiteral("ApplicationStatus"); }
  QString id() const { return QString::fromLatin1(kApplicationId); }
  QString title() const;
  QString status() const { return QStringLiteral("Active"); }
  int windowId() const { return 0; }       // the item belongs to no one window
  QString iconName() const { return {}; }  // the pictures count
  QList<DBusPicture> iconPixmap() const { return icon_; }
  DBusToolTip toolTip() const { return toolTip_; }
  bool itemIsMenu() const { return false; }
  QDBusObjectPath menu() const { return menuPath_; }

 public slots:
  void ProvideXdgActivationToken(const QString& token);
  void Activate(int x, int y);
  void ContextMenu(int x, int y);
  // A middle click and the wheel do nothing.
  void SecondaryActivate(int, int) {}
  void Scroll(int, const QString&) {}

 signals:
  void NewIcon();
  void NewToolTip();
  // Never sent, for neither changes; they complete the interface.
  void NewTitle();
  void NewStatus(const QString& status);

 private:
  void later(std::function<void()> report);

  const QDBusObjectPath menuPath_;
  const Reports reports_;
  QList<DBusPicture> icon_;
  DBusToolTip toolTip_;
  std::string token_;  ///< for the next click
};

}  // namespace brimle
