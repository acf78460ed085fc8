// The Return key of the entry field: Return commits to today, Alt+Return to tomorrow, Shift+Return breaks the
// line. While an input method composes, the key is its own. Watches the field it is given; never changes its
// text.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QQuickItem>

namespace brimle {

class ReturnKey : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickItem* field READ field WRITE setField NOTIFY fieldChanged)

 public:
  QQuickItem* field() const { return field_; }
  void setField(QQuickItem* field);

 signals:
  void fieldChanged();
  void commit(bool toTomorrow);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QQuickItem* field_ = nullptr;
};

}  // namespace brimle
