// Which changes of the system's zone are told.
#include "platform/desktop/posix_zone_watch.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <functional>

#include "platform/simulated/simulated_time.h"
#include "platform/temp_folder.h"

namespace brimle {
namespace {

namespace fs = std::filesystem;

struct ZoneWatchTest : testing::Test {
  ZoneWatchTest() {
    fs::copy_file("/usr/share/zoneinfo/Europe/Berlin", folder.path / "Berlin");
    fs::copy_file("/usr/share/zoneinfo/Asia/Tokyo", folder.path / "Tokyo");
    link("Berlin");
    time.setZone(":" + file.string());
    watch.takeChange();
  }
  void link(const char* zone) {
    fs::create_symlink(folder.path / zone, folder.path / "new");
    fs::rename(folder.path / "new", file);
  }
  /// Always with the same time of change.
  void write(const char* zone) {
    fs::copy_file(folder.path / zone, file, fs::copy_options::overwrite_existing);
    fs::last_write_time(file, {});
  }

  const TempFolder folder;
  const Path file = folder.path / "localtime";
  ZoneWatch watch{file};
  SimulatedTime time{"2026-06-15 20:00"};  // 22:00 in Berlin, the next day's 05:00 in Tokyo
};

TEST_F(ZoneWatchTest, TellsOfAnotherZoneOnceItsDataIsThereAndTheDayFollows) {
  const struct {
    const char* what;
    std::function<void()> act;
    bool taken;
    const char* day;
  } steps[] = {
      {"nothing happened", [] {}, false, "2026-06-15"},
      {"a link in its place", [&] { link("Tokyo"); }, true, "2026-06-16"},
      {"another file", [&] { std::ofstream(folder.path / "timezone") << "Berlin"; }, false, "2026-06-16"},
      {"a link to nothing", [&] { link("Nowhere"); }, false, "2026-06-16"},
      {"no file", [&] { fs::remove(file); }, false, "2026-06-16"},
      {"an empty file", [&] { std::ofstream{file}; }, false, "2026-06-16"},
      {"the file written", [&] { write("Berlin"); }, true, "2026-06-15"},
      {"written over", [&] { write("Tokyo"); }, true, "2026-06-16"},
      {"removed and linked", [&] { fs::remove(file), fs::create_symlink("Berlin", file); }, true,
       "2026-06-15"},
  };
  for (const auto& [what, act, taken, day] : steps) {
    SCOPED_TRACE(what);
    act();
    EXPECT_EQ(watch.takeChange(), taken);
    if (taken) reloadZone();
    EXPECT_EQ(dayKey(time.today()), day);
    EXPECT_FALSE(watch.takeChange()) << "it is told once";
  }
  EXPECT_EQ(std::getenv("TZ"), ":" + file.string());
  EXPECT_FALSE(ZoneWatch("/nowhere/localtime").takeChange());
}

}  // namespace
}  // namespace brimle
