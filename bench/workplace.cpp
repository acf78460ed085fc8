#include "workplace.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "sample_data.h"

namespace brimle::bench {

void require(bool done, const char* what) {
  if (done) return;
  std::fprintf(stderr, "brimle_bench: failed: %s\n", what);
  std::exit(1);
}

Workplace::Workplace(Files& files, const Path& folder)
    : time(std::string(kToday) + " 09:00"), store({time, files, desktop, notifications}, Region{}, folder) {
  require(store.items().size() == kLiveTasks, "opening the sample day file");
}

void Workplace::change() {
  const TodoItem& task = store.items().front();
  store.setHighlight({task.id}, !task.highlighted);
}

void Workplace::sweepOne() {
  const auto task = std::ranges::find(store.items(), false, &TodoItem::repeats);
  store.setDone({task->id}, true);
  store.addLines("one more task", false);
  time.advance(Seconds(1.25));  // the sweep comes after 1.22
}

}  // namespace brimle::bench
