#include "platform/desktop/qt_status_icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace brimle {
namespace {

constexpr std::array kSides{16, 22, 24, 32, 44, 48, 64};
constexpr long long kHighest = 99;

/// How each figure is drawn: its lines, and their points from left (0) over the middle to right (2) and from
/// top (0) to bottom (4). A line bends softly at the points that are marked r.
constexpr std::array kFigures{
    "10 00r 04r 24r 20r 10",                        // 0
    "01 10 14",                                     // 1
    "01 00r 20r 22r 04 24",                         // 2
    "00 20r 22r 12/12 22r 24r 04",                  // 3
    "00 03 23/21 24",                               // 4
    "20 00 02 22r 24r 04",                          // 5
    "20 00r 04r 24r 22r 02",                        // 6
    "00 20 14",                                     // 7
    "10 00r 02r 22r 20r 10/12 02r 04r 24r 22r 12",  // 8
    "04 24r 20r 00r 02r 22",                        // 9
};
constexpr const char* kPlus = "02 22/10 14";

/// How large one figure of one, two or three is, and how far from the next, in shares of the picture's side.
struct Measures {
  double width, height, gap;
};
constexpr std::array kMeasures{Measures{0.36, 0.58, 0}, Measures{0.25, 0.5, 0.11},
                               Measures{0.19, 0.45, 0.07}};

/// The box that a figure fills, and what its lines are drawn with. All but `pen` are whole pixels.
struct Box {
  int left, top, width, height;
  double pen;
};

/// Where a point of a figure is. A line in the middle is set to whole pixels too.
QPointF placed(const Box& box, int x, int y) {
  const double half = box.pen / 2;
  const double right = box.width - box.pen;
  const double bottom = box.height - box.pen;
  const auto between = [](double share, double whole) { return std::floor(share * whole); };
  const double across = x == 2 ? right : between(x / 2.0, right + 1);
  const double down = y == 4 ? bottom : between(y / 4.0, bottom);
  return {box.left + half + across, box.top + half + down};
}

struct Corner {
  QPointF place;
  bool soft;
};

/// A line through the corners. A soft one is an arc as wide as `reach` and its neighbours allow.
QPainterPath lineThrough(const std::vector<Corner>& corners, double reach) {
  constexpr double kArc = 0.5523;  // how far the controls of a quarter circle lie towards its corner
  QPainterPath path(corners.front().place);
  for (std::size_t i = 1; i + 1 < corners.size(); ++i) {
    const auto& [here, soft] = corners[i];
    const auto way = [&](const Corner& to) {
      const QPointF whole = to.place - here;
      const double room = std::hypot(whole.x(), whole.y());
      return whole / room * std::min(reach, to.soft ? room / 2 : room);
    };
    const QPointF back = soft ? way(corners[i - 1]) : QPointF();
    const QPointF on = soft ? way(corners[i + 1]) : QPointF();
    path.lineTo(here + back);
    path.cubicTo(here + back * (1 - kArc), here + on * (1 - kArc), here + on);
  }
  path.lineTo(corners.back().place);
  return path;
}

QPainterPath figure(const char* lines, const Box& box) {
  QPainterPath path;
  for (const QString& line : QString::fromLatin1(lines).split('/')) {
    std::vector<Corner> corners;
    for (const QString& point : line.split(' ')) {
      corners.push_back({placed(box, point[0].digitValue(), point[1].digitValue()), point.endsWith('r')});
    }
    path.addPath(lineThrough(corners, (box.width - box.pen) / 2));
  }
  return path;
}

std::vector<const char*> figuresOf(long long count) {
  if (count <= 0) return {};
  std::vector<const char*> figures;
  for (const char digit : std::to_string(std::min(count, kHighest))) figures.push_back(kFigures[digit - '0']);
  if (count > kHighest) figures.push_back(kPlus);
  return figures;
}

/// An even length can lie in the middle of a picture with an even side.
int even(double length) {
  return 2 * static_cast<int>(std::lround(length / 2));
}

void drawFigures(QPainter& painter, const std::vector<const char*>& figures, int side, double pen) {
  const Measures& shares = kMeasures[figures.size() - 1];
  const bool tight = figures.size() == kMeasures.size();  // no pixel to give away for an even length
  const auto whole = [tight, side](double share) {
    return tight ? static_cast<int>(share * side) : even(share * side);
  };
  const int count = static_cast<int>(figures.size());
  const int width = whole(shares.width);
  const int height = even(shares.height * side);
  const int step = width + whole(shares.gap);
  // An odd pixel goes to the left, away from the plus, which leaves room above and below it.
  int left = (side - (count - 1) * step - width + 1) / 2;
  for (const char* lines : figures) {
    const int high = lines == kPlus ? width : height;
    painter.drawPath(figure(lines, {left, (side - high) / 2, width, high, pen}));
    left += step;
  }
}

/// Hardly seen on the panel that the ink is for, and what makes it readable on any other.
QColor groundFor(const QColor& ink) {
  QColor ground = ink.lightness() < 128 ? Qt::white : Qt::black;
  ground.setAlphaF(0.4F);
  return ground;
}

}  // namespace

QImage statusPicture(int side, long long count, const QColor& ink) {
  const double pen = std::max(2.0, std::round(side / 8.0)) / 2;
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ink, pen, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.setBrush(groundFor(ink));
  painter.drawEllipse(QRectF(pen / 2, pen / 2, side - pen, side - pen));
  painter.setBrush(Qt::NoBrush);
  const std::vector<const char*> figures = figuresOf(count);
  if (!figures.empty()) drawFigures(painter, figures, side, pen);
  return image;
}

std::vector<QImage> statusPictures(long long count, const QColor& ink) {
  std::vector<QImage> pictures;
  for (const int side : kSides) pictures.push_back(statusPicture(side, count, ink));
  return pictures;
}

}  // namespace brimle
