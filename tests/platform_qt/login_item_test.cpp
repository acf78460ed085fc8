// The autostart entry: when it counts as on, what is written into it, and what of it is left alone.
#include "platform/desktop/qt_login_item.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <fstream>

#include "platform/desktop/posix_files.h"
#include "platform/simulated/memory_files.h"
#include "platform/temp_folder.h"

namespace brimle {
namespace {

using std::filesystem::perms;
using Status = LoginItem::Status;

constexpr auto kEntry = "autostart/org.brimle.Brimle.desktop";
constexpr auto kProgram = "/opt/my apps/brimle";
constexpr auto kWritten =
    "[Desktop Entry]\n"
    "Type=Application\n"
    "Name=Brimle\n"
    "Exec=\"/opt/my apps/brimle\"\n"
    "Icon=org.brimle.Brimle\n";

class AutostartEntry : public testing::Test {
 protected:
  QtLoginItem itemFor(const Path& program) { return {files, program, {own, first, second}}; }

  void write(const Path& config, const std::string& text) {
    files.createFolders((config / kEntry).parent_path());
    std::ofstream(config / kEntry) << text;
  }
  std::string written() { return files.read(own / kEntry).value_or("none"); }

  TempFolder folder;
  const Path own = folder.path / "own", first = folder.path / "first", second = folder.path / "second";
  PosixFiles files;
  QtLoginItem item = itemFor(kProgram);
};

TEST_F(AutostartEntry, IsOnWhileTheFirstEntryStartsTheProgram) {
  const std::string on = "[Desktop Entry]\nExec=\"/opt/my apps/brimle\"\n";
  const std::string off = on + "Hidden=true\n";
  const struct {
    std::string own, first, second;  ///< absent where empty
    bool enabled;
  } kCases[] = {
      {"", "", "", false},
      {on, "", "", true},
      {off, on, on, false},
      {on + "X-GNOME-Autostart-enabled=false\n", "", "", false},
      {"[Desktop Entry]\nExec=brimle --quiet\n", "", "", true},
      {"[Desktop Entry]\nExec=/opt/other/brimle\n", on, "", false},
      {"", on, "", true},
      {"", "", on, true},
      {"", off, on, false},
  };
  for (const auto& [ownText, firstText, secondText, enabled] : kCases) {
    for (const auto& [config, text] : {std::pair(own, ownText), {first, firstText}, {second, secondText}}) {
      std::filesystem::remove_all(config);
      if (!text.empty()) write(config, text);
    }
    EXPECT_EQ(item.status(), enabled ? Status::enabled : Status::notRegistered)
        << ownText << '|' << firstText << '|' << secondText;
  }
}

TEST_F(AutostartEntry, IsWrittenForEverybodyToReadAndTakenAwayAgain) {
  EXPECT_TRUE(item.add());
  EXPECT_EQ(item.status(), Status::enabled);
  EXPECT_EQ(written(), kWritten);
  EXPECT_EQ(std::filesystem::status(own / kEntry).permissions(), perms(0644));
  EXPECT_TRUE(item.remove());
  EXPECT_FALSE(files.exists(own / kEntry));
  EXPECT_TRUE(item.remove());

  EXPECT_TRUE(itemFor("/usr/local/bin/brimle").add());
  EXPECT_NE(written().find("Exec=brimle\n"), std::string::npos) << "a packaged program is on every PATH";
}

TEST_F(AutostartEntry, IsFoundByTheEnvironmentAndByAnyPathToTheProgram) {
  qputenv("XDG_CONFIG_HOME", own.c_str());
  qputenv("XDG_CONFIG_DIRS", (first.string() + ':' + second.string()).c_str());
  std::filesystem::create_symlink("/proc/self/exe", folder.path / "link");
  write(second, "[Desktop Entry]\nExec=" + (folder.path / "link").string());
  EXPECT_EQ(QtLoginItem(files).status(), Status::enabled);
  EXPECT_EQ(item.status(), Status::notRegistered);
  EXPECT_TRUE(QtLoginItem(files).add());
  EXPECT_EQ(itemFor(QCoreApplication::applicationFilePath().toStdString()).status(), Status::enabled);
  qunsetenv("XDG_CONFIG_HOME");
  qunsetenv("XDG_CONFIG_DIRS");
}

TEST_F(AutostartEntry, KeepsWhatTheUserWroteIntoIt) {
  write(own,
        "# mine\n[Desktop Entry]\nHidden=true\nX-Delay=5\nExec=\"/opt/my apps/brimle\" --quiet\n"
        "X-GNOME-Autostart-enabled=false\n\n[Other]\nExec=other\n");
  std::filesystem::permissions(own / kEntry, perms(0600));
  EXPECT_TRUE(item.add());
  EXPECT_EQ(item.status(), Status::enabled);
  EXPECT_EQ(written(),
            "# mine\n[Desktop Entry]\nX-Delay=5\nExec=\"/opt/my apps/brimle\" --quiet\nType=Application\n"
            "Name=Brimle\nIcon=org.brimle.Brimle\n\n[Other]\nExec=other\n");
  EXPECT_EQ(std::filesystem::status(own / kEntry).permissions(), perms(0600));

  write(own, "[Desktop Entry]\nExec=/opt/old/brimle\n");
  EXPECT_TRUE(item.add());
  EXPECT_EQ(item.status(), Status::enabled);
}

TEST_F(AutostartEntry, HidesTheOneOfTheSystem) {
  write(second, kWritten);
  EXPECT_TRUE(item.remove());
  EXPECT_EQ(written(), "[Desktop Entry]\nType=Application\nName=Brimle\nHidden=true\n");
  EXPECT_EQ(item.status(), Status::notRegistered);
  EXPECT_EQ(files.read(second / kEntry), kWritten);
  EXPECT_TRUE(item.add());
  EXPECT_EQ(item.status(), Status::enabled);
}

TEST_F(AutostartEntry, SaysWhenItCannotBeChanged) {
  MemoryFiles fullDisk;
  fullDisk.diskFull = true;
  EXPECT_FALSE(QtLoginItem(fullDisk, kProgram, {own}).add());

  std::filesystem::create_directories(own / kEntry / "in it");
  EXPECT_FALSE(item.add());
  EXPECT_FALSE(item.remove());
  EXPECT_EQ(item.status(), Status::notRegistered);
}

}  // namespace
}  // namespace brimle
