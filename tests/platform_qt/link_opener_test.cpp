// How links are handed to the desktop's program for them.
#include "platform/desktop/qt_link_opener.h"

#include <sys/stat.h>
#include <sys/wait.h>

#include <fstream>

#include "platform/temp_folder.h"
#include "platform_qt/patience.h"

namespace brimle {
namespace {

/// Stands for the desktop's xdg-open: it takes its time until it is let go, then writes down what it was
/// given.
class LinkProgram : public testing::Test {
 protected:
  LinkProgram() {
    const std::string path = folder.path.string();
    if (::mkfifo((path + "/gate").c_str(), 0600) != 0) std::abort();
    std::ofstream(program) << "#!/bin/sh\ncd " << path << "\nread go <gate\nprintf '%s|' \"$@\" >opened\n";
    std::filesystem::permissions(program, std::filesystem::perms(0700));
    qputenv("PATH", path.c_str() + (":" + oldPath));
  }
  ~LinkProgram() override { qputenv("PATH", oldPath); }

  static bool isRunning() { return ::waitid(P_ALL, 0, nullptr, WEXITED | WNOHANG | WNOWAIT) == 0; }
  std::string letGo() {
    std::ofstream(folder.path / "gate") << "go\n";
    waitFor([] { return !isRunning(); });
    std::string given;
    std::getline(std::ifstream(opened), given);
    std::filesystem::remove(opened);
    return given;
  }

  const QByteArray oldPath = qgetenv("PATH");
  TempFolder folder;
  const std::filesystem::path program = folder.path / "xdg-open", opened = folder.path / "opened";
  QtLinkOpener opener;
};

TEST_F(LinkProgram, IsGivenTheLinkAndNotWaitedFor) {
  const std::pair<const char*, const char*> kCases[] = {
      {"mailto:support@brimle.invalid?subject=Brimle%20feedback",
       "mailto:support@brimle.invalid?subject=Brimle%20feedback|"},
      {"https://a.example/b?c=%2F&d='e'#f", "https://a.example/b?c=%2F&d='e'#f|"},
      {"https://a.example/$(touch x);`y` \"z\"", "https://a.example/$(touch%20x);%60y%60%20%22z%22|"},
      {"https://a.example/größe", "https://a.example/gr%C3%B6%C3%9Fe|"},
  };
  for (const auto& [link, given] : kCases) {
    opener.open(link);
    EXPECT_FALSE(std::filesystem::exists(opened));
    EXPECT_EQ(letGo(), given);
  }
}

TEST_F(LinkProgram, IsNotStartedForWhatIsNoLink) {
  for (const char* text : {"", "--help", "a.example", "/etc/passwd", "https://a b.example/"}) {
    opener.open(text);
    EXPECT_FALSE(isRunning()) << text;
  }
}

TEST_F(LinkProgram, MayBeAbsent) {
  std::filesystem::remove(program);
  qputenv("PATH", folder.path.c_str());
  opener.open("https://a.example/");
  waitFor([] { return !isRunning(); });
}

}  // namespace
}  // namespace brimle
