// The context menu of a text field: undo, redo, cut, copy, paste, select all. Opened by a right click, the
// Menu key or Shift+F10. Watches the field it is given and acts through it.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QPointF>
#include <QQuickItem>

namespace brimle {

class TextMenu : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickItem* field READ field WRITE setField NOTIFY fieldChanged)

 public:
  QQuickItem* field() const { return field_; }
  void setField(QQuickItem* field);

 signals:
  void fieldChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool openAt(const QPointF& place);
  bool openByKey(const QKeyEvent& key);

  QQuickItem* field_ = nullptr;
};

}  // namespace brimle
