#include "window_place.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTest>
#include <QTimer>
#include <functional>

#include "sample_data.h"
#include "timing.h"

namespace brimle::bench {
namespace {

using Clock = std::chrono::steady_clock;

/// No frame for so long: nothing is about to be painted.
constexpr std::chrono::milliseconds kQuiet(12);
constexpr std::chrono::seconds kMostWaiting(20);
enum : int { kDone, kTooLate };

/// Handles events until `done`, and looks again every millisecond; false where that takes too long. In a loop
/// as the program's: outside of one, objects that are to be deleted later stay.
template <class Done>
bool handleEventsUntil(Done done) {
  const auto limit = Clock::now() + kMostWaiting;
  QEventLoop loop;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &loop, [&] {
    if (done()) loop.exit(kDone);
    if (Clock::now() > limit) loop.exit(kTooLate);
  });
  look.start(std::chrono::milliseconds(1));
  return loop.exec() == kDone;
}

QQuickItem* search(QQuickItem* item, const std::function<bool(const QQuickItem&)>& wanted) {
  if (!item->isVisible()) return nullptr;
  if (wanted(*item)) return item;
  for (QQuickItem* child : item->childItems()) {
    if (QQuickItem* found = search(child, wanted)) return found;
  }
  return nullptr;
}

}  // namespace

WindowPlace::WindowPlace(int years)
    : place_(filesWithDayFile(years), "/data"),
      sel_(place_.time),
      content_(place_.store, place_.time),
      archive_(place_.store, sel_, ui_, place_.time),
      main_({place_.store, content_, archive_, ui_, sel_, place_.time, todayFocusAdd_, links_}, pasteboard_) {
  main_.orderFront();
  todayFocusAdd_.notify();
  window_ = qobject_cast<QQuickWindow*>(QGuiApplication::topLevelWindows().constLast());
  require(window_ && QTest::qWaitForWindowActive(window_), "bringing the window forward");
  QObject::connect(window_, &QQuickWindow::frameSwapped, window_, [this] {
    ++frames_;
    lastFrame_ = clock();
  });
}

MemoryFiles& WindowPlace::filesWithDayFile(int years) {
  files_.put("/data/today.json", sample(years).document);
  return files_;
}

std::chrono::nanoseconds WindowPlace::clock() {
  return Clock::now().time_since_epoch() - waitedForProcessor("thread-self");
}

void WindowPlace::settle() {
  const auto start = clock();
  const auto quiet = [&] { return clock() - std::max(start, lastFrame_) > kQuiet; };
  require(handleEventsUntil(quiet), "waiting for a window at rest");
}

void WindowPlace::waitForFrameAfter(int count) {
  require(handleEventsUntil([&] { return frames_ > count; }), "waiting for a frame");
}

void WindowPlace::press(Qt::Key key) {
  QTest::keyPress(window_, key);
  QTest::keyRelease(window_, key);
}

double WindowPlace::secondsToKey(Qt::Key key) {
  const double seconds = secondsToFrame([&] { QTest::keyPress(window_, key); });
  QTest::keyRelease(window_, key);
  return seconds;
}

double WindowPlace::secondsToKey(char character) {
  const double seconds = secondsToFrame([&] { QTest::keyPress(window_, character); });
  QTest::keyRelease(window_, character);
  return seconds;
}

double WindowPlace::secondsToClick(QQuickItem& item) {
  const QPoint place = item.mapToScene({item.width() / 2, item.height() / 2}).toPoint();
  QTest::mousePress(window_, Qt::LeftButton, {}, place);
  return secondsToFrame([&] { QTest::mouseRelease(window_, Qt::LeftButton, {}, place); });
}

QQuickItem& WindowPlace::ofClass(const char* className) {
  QQuickItem* found =
      search(window_->contentItem(), [&](const QQuickItem& item) { return item.inherits(className); });
  require(found, ("finding the " + std::string(className)).c_str());
  return *found;
}

QQuickItem& WindowPlace::withText(const QString& text) {
  QQuickItem* found =
      search(window_->contentItem(), [&](const QQuickItem& item) { return item.property("text") == text; });
  require(found, ("finding " + text.toStdString()).c_str());
  return *found;
}

}  // namespace brimle::bench
