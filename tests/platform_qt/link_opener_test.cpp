#include "platform/desktop/qt_link_opener.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <QTest>
#include <fstream>

#include "platform/temp_folder.h"

namespace brimle {
namespace {

constexpr int kPatience = 60'000;  // milliseconds; only a broken machine needs them

/// Stands for the desktop's xdg-open: it takes its time until it is let go, then writes down what it was
/// given.
class LinkProgram : public testing::Test {
 protected:
  LinkProgram() {
    const std::string path = folder.path.string();
    if (::mkfifo((path + "/gate").c_str(), 0600) != 0) std::abort();
    std::ofstream(path + "/xdg-open")
        << "#!/bin/sh\ncd " << path << "\nread go <gate\nprintf '%s|' \"$@\" >opened\n";
    std::filesystem::permissions(path + "/xdg-open", std::filesystem::perms(0700));
    qputenv("PATH", path.c_str() + (":" + oldPath));
  }
  ~LinkProgram() override { qputenv("PATH", oldPath); }

  bool hasOpened() const { return std::filesystem::exists(folder.path / "opened"); }

  static bool isRunning() { return ::waitid(P_ALL, 0, nullptr, WEXITED | WNOHANG | WNOWAIT) == 0; }
  static void awaitEnd() {
    EXPECT_TRUE(QTest::qWaitFor([] { return !isRunning(); }, kPatience));
  }

  std::string letGo() {
    std::ofstream(folder.path / "gate") << "go\n";
    awaitEnd();
    std::string given;
    std::getline(std::ifstream(folder.path / "opened"), given);
    std::filesystem::remove(folder.path / "opened");
    return given;
  }

  const QByteArray oldPath = qgetenv("PATH");
  TempFolder folder;
  QtLinkOpener opener;
};

TEST_F(LinkProgram, IsGivenTheLinkAndNotWaitedFor) {
  const struct {
    const char *link, *given;
  } kCases[] = {
      {"mailto:support@brimle.invalid?subject=Brimle%20feedback",
       "mailto:support@brimle.invalid?subject=Brimle%20feedback|"},
      {"https://a.example/b?c=%2F&d='e'#f", "https://a.example/b?c=%2F&d='e'#f|"},
      {"https://a.example/$(touch x);`y` \"z\"", "https://a.example/$(touch%20x);%60y%60%20%22z%22|"},
      {"https://a.example/größe", "https://a.example/gr%C3%B6%C3%9Fe|"},
  };
  for (const auto& [link, given] : kCases) {
    opener.open(link);
    EXPECT_FALSE(hasOpened());
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
  std::filesystem::remove(folder.path / "xdg-open");
  qputenv("PATH", folder.path.c_str());
  opener.open("https://a.example/");
  awaitEnd();
  EXPECT_FALSE(hasOpened());
}

}  // namespace
}  // namespace brimle
