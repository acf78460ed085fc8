// The C library's view of local time, shared by both implementations of the Time port.
#pragma once

#include "platform/time.h"

namespace brimle {

/// The day of an instant in the process's time zone (the TZ variable, else /etc/localtime).
Day civilDay(Instant instant);

/// The hour of that day, 0 to 23.
int civilHour(Instant instant);

/// The first instant of a day in the process's time zone: midnight, or where the clocks skip it, the end of
/// the gap.
Instant startOfDay(Day day);

}  // namespace brimle
