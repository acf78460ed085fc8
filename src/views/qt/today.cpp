#include "views/qt/today.h"

#include "views/qt/convert.h"

namespace brimle {

Today::Today(Store& store, ContentView& view, UIState& ui)
    : view_(view),
      tasks_(store),
      store_(store.observe([this](const Store::Changes&) {
        tasks_.refresh();
        emit changed();
      })),
      settings_(ui.observe([this] { emit changed(); })) {}

QString Today::dateLine() const {
  return toQt(view_.dateLine());
}
QString Today::count() const {
  return toQt(view_.count().text);
}
bool Today::allDone() const {
  return view_.count().allDone;
}
QString Today::tomorrowLabel() const {
  return toQt(view_.tomorrowLabel());
}
QString Today::tomorrowTooltip() const {
  return toQt(view_.tomorrowTooltip());
}

void Today::commit(const QString& draft, bool toTomorrow) {
  view_.commitDraft(fromQt(draft), toTomorrow);
}

void Today::toggle(const QString& taskId) {
  if (const auto id = Uuid::parse(fromQt(taskId))) view_.toggle(*id);
}

}  // namespace brimle
