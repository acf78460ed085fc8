// Watches one text field of QML and sees its events before the field does. What it does with them is its heirs'.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
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
  /// Whether the event was used and goes no further. There is a field then.
  virtual bool sees(QEvent& event) = 0;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  QQuickItem* field_ = nullptr;
};

}  // namespace brimle
