// The pictures of the count in the panel: whether they can be told apart and read.
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

TEST(StatusPicture, DiffersForEveryCountUpToNinetyNineWithinTheRing) {
  for (const int side : kSides) {
    const QImage ring = statusPicture(side, 0, Qt::black);
    std::set<std::string> pictures{bytesOf(ring)};
    for (int count = 1; count <= 100; ++count) {
      const QImage picture = statusPicture(side, count, Qt::black);
      pictures.insert(bytesOf(picture));
      double reach = 0;  // of the figures from the middle
      for (int i = 0; i < side * side; ++i) {
        const int x = i % side, y = i / side;
        if (picture.pixel(x, y) != ring.pixel(x, y))
          reach = std::max(reach, std::hypot(x + 0.5 - side / 2.0, y + 0.5 - side / 2.0));
      }
      EXPECT_LT(reach, side * 0.5 - side / 16.0) << side << ' ' << count;
      EXPECT_GT(reach, side * 0.2) << side << ' ' << count;
    }
    EXPECT_EQ(pictures.size(), 101u) << side;
    EXPECT_EQ(statusPicture(side, 100, Qt::black), statusPicture(side, 9'000'000'000, Qt::black));
    EXPECT_EQ(statusPicture(side, 0, Qt::black), statusPicture(side, -1, Qt::black));
  }
}

TEST(StatusPicture, CanBeReadOnAnyPanel) {
  for (const QColor panel : {Qt::white, Qt::black, Qt::gray, Qt::darkBlue, Qt::yellow}) {
    for (const QColor ink : {QColor(0x2b2b2b), QColor(0xf2f2f2)}) {
      QImage screen(48, 48, QImage::Format_RGB32);
      screen.fill(panel);
      QPainter(&screen).drawImage(0, 0, statusPicture(48, 8, ink));
      std::set<int> grays;  // down through the middle of the figure
      for (int y = 10; y < 38; ++y) grays.insert(qGray(screen.pixel(24, y)));
      EXPECT_GE(*grays.rbegin() - *grays.begin(), 50) << panel.name().toStdString() << ink.value();
    }
  }
}

}  // namespace
}  // namespace brimle
