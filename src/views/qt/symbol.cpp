#include "views/qt/symbol.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

namespace brimle {
namespace {

/// The drawing with its colour, which the files write as currentColor, filled in.
QByteArray drawing(const QString& name, const QString& color) {
  QFile file(QStringLiteral(":/qt/qml/Brimle/symbols/%1.svg").arg(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return file.readAll().replace("currentColor", color.toLatin1());
}

/// Read once for each colour: a list paints the same few symbols in every row.
QSvgRenderer& rendererOf(const QString& name, const QColor& color) {
  static QHash<std::pair<QString, QRgb>, QSvgRenderer*> renderers;
  QSvgRenderer*& renderer = renderers[{name, color.rgb()}];
  if (!renderer) renderer = new QSvgRenderer(drawing(name, color.name()), QCoreApplication::instance());
  return *renderer;
}

}  // namespace

void Symbol::setName(const QString& name) {
  if (name_ == name) return;
  name_ = name;
  emit changed();
  update();
}

void Symbol::setColor(const QColor& color) {
  if (color_ == color) return;
  color_ = color;
  emit changed();
  update();
}

void Symbol::setSize(double size) {
  if (size_ == size) return;
  size_ = size;
  setImplicitSize(size, size);
  emit changed();
}

void Symbol::paint(QPainter* painter) {
  QSvgRenderer& renderer = rendererOf(name_, color_);
  if (!renderer.isValid()) return;
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setOpacity(color_.alphaF());
  renderer.render(painter, boundingRect());
}

}  // namespace brimle
