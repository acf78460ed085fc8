// When the days of a zone begin.
#include "platform/civil.h"

#include <gtest/gtest.h>

#include "platform/simulated/simulated_time.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;

TEST(Civil, ADayBeginsWhereTheDayBeforeEndsInEveryZone) {
  for (const char* zone : {"Europe/Berlin", "America/Sao_Paulo", "Africa/Cairo", "Australia/Lord_Howe"}) {
    const SimulatedTime time("2026-06-15 09:00", zone);
    for (sys_days day = 1960y / 1 / 1; day < sys_days(2040y / 1 / 1); day += std::chrono::days(1)) {
      ASSERT_EQ(civilDay(startOfDay(day)), Day(day)) << zone;
      ASSERT_EQ(civilDay(startOfDay(day) - 1us), Day(day - std::chrono::days(1))) << zone;
    }
  }
}

TEST(Civil, ASkippedDayBeginsWithTheNextAndOneThatBeginsTwiceAtTheFirst) {
  const SimulatedTime samoa("2011-12-29 09:00", "Pacific/Apia");
  EXPECT_EQ(startOfDay(2011y / 12 / 30), sys_days(2011y / 12 / 30) + 10h);
  EXPECT_EQ(startOfDay(2011y / 12 / 31), sys_days(2011y / 12 / 30) + 10h);
  const SimulatedTime cuba("2025-11-01 09:00", "America/Havana");
  EXPECT_EQ(startOfDay(2025y / 11 / 2), sys_days(2025y / 11 / 2) + 4h);
}

}  // namespace
}  // namespace brimle
