// The picture of the status item: a ring with a number in it, in one colour. The figures are drawn by lines
// of its own, set to whole pixels at every size, so that two of them can be read at 16 pixels; a faint ground
// in the ring lets them be read also on a panel of the colour's own brightness.
#pragma once

#include <QColor>
#include <QImage>
#include <vector>

namespace brimle {

/// One picture, `side` (16 or more) pixels square. The ring is empty for a count of 0; from 100 on it says
/// "99+".
QImage statusPicture(int side, long long count, const QColor& ink);

/// The picture at the sizes that panels use, on screens of scale 1 and 2.
std::vector<QImage> statusPictures(long long count, const QColor& ink);

}  // namespace brimle
