#include "platform/desktop/qt_status_icon.h"

#include <gtest/gtest.h>

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

TEST(StatusPicture, IsInkOnNothingAndSharp) {
  for (const int side : kSides) {
    const QImage picture = statusPicture(side, 11, Qt::white).convertToFormat(QImage::Format_ARGB32);
    EXPECT_EQ(picture.size(), QSize(side, side));
    EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0);
    int full = 0;  // the longest column of pixels that are ink all over: the stem of a one
    for (int x = 0; x < side; ++x) {
      int run = 0;
      for (int y = 0; y < side; ++y) {
        const QRgb pixel = picture.pixel(x, y);
        EXPECT_TRUE(qAlpha(pixel) == 0 || (pixel | 0xff000000) == qRgb(255, 255, 255));
        full = std::max(full, run = qAlpha(pixel) == 255 ? run + 1 : 0);
      }
    }
    EXPECT_GE(full, side * 3 / 8) << side;
  }
}

}  // namespace
}  // namespace brimle
