#include "platform/desktop/qt_status_icon.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <set>

namespace brimle {
namespace {

constexpr int kSides[] = {16, 22, 24, 32, 44, 48, 64};

std::string bytesOf(const QImage& image) {
  return {reinterpret_cast<const char*>(image.constBits()), static_cast<std::size_t>(image.sizeInBytes())};
}

TEST(StatusPicture, DiffersForEveryCountUpToNinetyNine) {
  for (const int side : kSides) {
    std::set<std::string> pictures;
    for (int count = 0; count <= 100; ++count)
      pictures.insert(bytesOf(statusPicture(side, count, Qt::black)));
    EXPECT_EQ(pictures.size(), 101u) << side;
    EXPECT_EQ(statusPicture(side, 100, Qt::black), statusPicture(side, 9'000'000'000, Qt::black));
    EXPECT_EQ(statusPicture(side, 0, Qt::black), statusPicture(side, -1, Qt::black));
  }
}

/// How far from the middle the figures reach, in pixels: to the middle of the outermost pixel they colour.
double reachOfFigures(int side, int count) {
  const QImage ring = statusPicture(side, 0, Qt::black), picture = statusPicture(side, count, Qt::black);
  double reach = 0;
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      if (picture.pixel(x, y) == ring.pixel(x, y)) continue;
      reach = std::max(reach, std::hypot(x + 0.5 - side / 2.0, y + 0.5 - side / 2.0));
    }
  }
  return reach;
}

TEST(StatusPicture, KeepsItsFiguresWithinTheRing) {
  for (const int side : kSides) {
    for (int count = 1; count <= 100; ++count) {
      EXPECT_LT(reachOfFigures(side, count), side * 0.5 - side / 16.0) << side << ' ' << count;
      EXPECT_GT(reachOfFigures(side, count), side * 0.2) << side << ' ' << count;
    }
  }
}

TEST(StatusPicture, IsSharp) {
  for (const int side : kSides) {
    const QImage picture = statusPicture(side, 11, Qt::white).convertToFormat(QImage::Format_ARGB32);
    EXPECT_EQ(picture.size(), QSize(side, side));
    EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0);
    int stem = 0;  // the longest column of pixels that are ink all over
    for (int x = 0; x < side; ++x) {
      int run = 0;
      for (int y = 0; y < side; ++y)
        stem = std::max(stem, run = picture.pixel(x, y) == qRgb(255, 255, 255) ? run + 1 : 0);
    }
    EXPECT_GE(stem, side * 3 / 8) << side;
  }
}

double luminance(const QColor& color) {
  const auto linear = [](double share) { return std::pow(share, 2.2); };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

TEST(StatusPicture, CanBeReadOnAnyPanel) {
  for (const QColor panel : {Qt::white, Qt::black, Qt::gray, Qt::darkBlue, Qt::yellow}) {
    for (const QColor ink : {QColor(0x2b2b2b), QColor(0xf2f2f2)}) {
      QImage screen(48, 48, QImage::Format_RGB32);
      screen.fill(panel);
      QPainter(&screen).drawImage(0, 0, statusPicture(48, 8, ink));
      double darkest = 1, brightest = 0;
      for (int y = 10; y < 38; ++y) {
        darkest = std::min(darkest, luminance(screen.pixelColor(24, y)));
        brightest = std::max(brightest, luminance(screen.pixelColor(24, y)));
      }
      EXPECT_GE((brightest + 0.05) / (darkest + 0.05), 2.5)
          << panel.name().toStdString() << ink.name().toStdString();
    }
  }
}

}  // namespace
}  // namespace brimle
