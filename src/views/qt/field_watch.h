// What stands beside a text field and sees its events before the field does. Keeps no field alive. Those that
// derive from it name it in full: the tools of QML look a base up by the name that is written.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QPointer>
#include <QQuickItem>

namespace brimle {

class FieldWatch : public QObject {
  Q_OBJECT
  QML_ANONYMOUS
  Q_PROPERTY(QQuickItem* field READ field WRITE setField NOTIFY fieldChanged)

 public:
  QQuickItem* field() const { return field_; }
  void setField(QQuickItem* field);

 signals:
  void fieldChanged();

 protected:
  /// A key press in the field; whether it is used up.
  virtual bool keyPressed(const QKeyEvent& key) = 0;
  /// A mouse button is pressed in the field; whether that is used up.
  virtual bool buttonPressed(const QMouseEvent&) { return false; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPointer<QQuickItem> field_;
};

}  // namespace brimle
