// What the window does with a key or a click, up to the frame that shows it.
#include "operations.h"
#include "sample_data.h"
#include "timing.h"
#include "window_place.h"

namespace brimle::bench {
namespace {

constexpr double kNearlyAll = 0.99;

/// Every time in a new window: the first click is the slowest.
void openArchive(benchmark::State& state, int years) {
  std::vector<double> seconds;
  for (auto _ : state) {
    WindowPlace window(years);
    seconds.push_back(window.secondsToClick(window.withText("Archive")));
    const auto rows = static_cast<std::size_t>(window.ofClass("QQuickListView").property("count").toInt());
    require(rows > sample(years).days.size(), "showing the archive");
  }
  state.counters[kOwnSecondsCounter] = median(seconds);
}

/// Each frame shows other rows than the one before: no turn of a wheel or flick asks for more.
void scroll(benchmark::State& state, int years) {
  WindowPlace window(years);
  window.secondsToClick(window.withText("Archive"));
  QQuickItem& list = window.ofClass("QQuickListView");
  std::vector<double> seconds;
  for (auto _ : state) {
    while (!list.property("atYEnd").toBool()) {
      const double next = list.property("contentY").toDouble() + list.height();
      seconds.push_back(window.secondsToNextFrame([&] { list.setProperty("contentY", next); }));
    }
  }
  state.counters[kOwnSecondsCounter] = quantile(seconds, kNearlyAll);
}

/// Types the text a key a frame, then takes it back a key a frame.
void typeAndErase(WindowPlace& window, const std::string& text, std::vector<double>& seconds) {
  for (const char key : text) seconds.push_back(window.secondsToKey(key));
  for (std::size_t left = text.size(); left > 0; --left) {
    seconds.push_back(window.secondsToKey(Qt::Key_Backspace));
  }
}

void typeTask(benchmark::State& state, int years) {
  WindowPlace window(years);
  std::vector<double> seconds;
  for (auto _ : state) {
    typeAndErase(window, "Call the bank at 9 // ask for Mrs Winter >22/9", seconds);
    typeAndErase(window, "water the plants on the balcony // and those of the neighbours *w", seconds);
    typeAndErase(window, "renew the passport // two photographs, the old one >monday !", seconds);
  }
  state.counters[kOwnSecondsCounter] = quantile(seconds, kNearlyAll);
}

/// From the top to the bottom and back.
void walkList(benchmark::State& state, int years) {
  WindowPlace window(years);
  QQuickItem& list = window.ofClass("QQuickListView");
  window.secondsToClick(list);
  const int rows = list.property("count").toInt();
  for (int row = 0; row < rows; ++row) window.press(Qt::Key_Up);
  std::vector<double> seconds;
  for (auto _ : state) {
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up}) {
      for (int step = 1; step < rows; ++step) seconds.push_back(window.secondsToKey(key));
    }
  }
  state.counters[kOwnSecondsCounter] = quantile(seconds, kNearlyAll);
}

void typeSearch(benchmark::State& state, int years) {
  WindowPlace window(years);
  window.secondsToClick(window.withText("Archive"));
  window.secondsToClick(window.ofClass("QQuickTextInput"));
  std::vector<double> seconds;
  for (auto _ : state) {
    for (const char* query : {"invoice for", "milk", "e", "no such words"})
      typeAndErase(window, query, seconds);
  }
  state.counters[kOwnSecondsCounter] = quantile(seconds, kNearlyAll);
}

}  // namespace

const Operation kOpenArchive{"open archive", openArchive, 15, 1};
const Operation kScroll{"scroll", scroll, 1, 1};
const Operation kTypeTask{"type task", typeTask, 1, 5};
const Operation kWalkList{"walk list", walkList, 5, 5};
const Operation kTypeSearch{"type search", typeSearch, 3, 5};

}  // namespace brimle::bench
