#include "model/working_user.h"

namespace brimle {
namespace {

using Year = WorkingUser;

TEST_F(Year, LosesNoTaskAndFilesNoneTwice) {
  begin("2027-09-01 08:00", "Europe/Berlin");
  workUntil("2027-11-03 02:00");
  time.setZone("America/New_York");  // where it is the 2nd again
  workUntil("2027-12-10 12:00");
  time.setClock(time.now() - 24h);
  workUntil("2027-12-20 12:00");
  time.setClock(time.now() + 24h);
  workUntil("2028-01-15 23:00");
  tickAll();
  time.advance(1s);
  time.sleep(240h);  // in the middle of the fade
  workUntil("2028-02-20 09:00");
  endFor(72h);
  workUntil("2028-03-20 20:00");
  time.setZone("Europe/Berlin");  // where it is the 21st already
  workUntil("2028-09-01 08:00");

  std::map<std::string, int> expected;
  const std::chrono::sys_days first = 2027y / 9 / 1, last = 2028y / 9 / 1;
  for (auto each = first; each <= last; each += std::chrono::days(1)) expected[dayKey(each)] = 1;
  for (const char* twice : {"2027-11-02", "2027-11-03", "2027-12-09", "2027-12-10"}) expected[twice] = 2;
  for (int slept = 16; slept < 25; ++slept) expected.erase("2028-01-" + std::to_string(slept));
  for (const char* ended : {"2028-02-21", "2028-02-22"}) expected.erase(ended);
  EXPECT_EQ(timesLived, expected);
  EXPECT_GT(known.size(), 700u);
  EXPECT_GT(swept, 300);
}

}  // namespace
}  // namespace brimle
