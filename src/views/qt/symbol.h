// A symbol of the interface: one of the SVG drawings in views/symbols, in one colour, sharp at any scale.
// Example: Symbol { name: "plus"; size: 11; color: Theme.secondary }
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QQuickPaintedItem>

namespace brimle {

class Symbol : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)
  Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
  Q_PROPERTY(double size READ size WRITE setSize NOTIFY changed)

 public:
  explicit Symbol(QQuickItem* parent = nullptr) : QQuickPaintedItem(parent) {}

  const QString& name() const { return name_; }
  const QColor& color() const { return color_; }
  double size() const { return size_; }
  void setName(const QString& name);
  void setColor(const QColor& color);
  /// Side of the square it is drawn in, in points.
  void setSize(double size);

  void paint(QPainter* painter) override;

 signals:
  void changed();

 private:
  QString name_;
  QColor color_ = Qt::black;
  double size_ = 0;
};

}  // namespace brimle
