// Which tasks rest: repeating ones already swept today, and weekday ones on a weekend day. A resting task
// stays in its list and is left out of everything that is shown, counted or walked.
#pragma once

#include "model/records.h"

namespace brimle {

inline bool rests(const TodoItem& task, bool weekendToday) {
  return task.repeats && (task.clearedToday || (weekendToday && task.schedule == Schedule::weekdays));
}

}  // namespace brimle
