// Which session buses are told to hang.
#include "platform/desktop/posix_bus_probe.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <thread>

#include "platform/temp_folder.h"

namespace brimle {
namespace {

using std::chrono::milliseconds;

/// A socket that takes connections, up to one that waits, and does with the first one what it is told.
class Listener {
 public:
  explicit Listener(const std::string& name) : socket_(::socket(AF_UNIX, SOCK_STREAM, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    name.copy(address.sun_path, sizeof address.sun_path - 1);
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size());
    EXPECT_EQ(::bind(socket_, reinterpret_cast<const sockaddr*>(&address), length), 0);
    EXPECT_EQ(::listen(socket_, 0), 0);
  }
  ~Listener() {
    if (answering_.joinable()) answering_.join();
    ::close(socket_);
  }
  /// Hangs up once it has said so much; it hears before it speaks.
  void answers(std::string_view words) {
    answering_ = std::thread([this, words] {
      const int client = ::accept(socket_, nullptr, nullptr);
      char heard[7];
      if (!words.empty() && ::recv(client, heard, sizeof heard, MSG_WAITALL) > 0)
        ::send(client, words.data(), words.size(), MSG_NOSIGNAL);
      ::close(client);
    });
  }

 private:
  int socket_;
  std::thread answering_;
};

constexpr milliseconds kShort(20);  // for those who stay silent
constexpr milliseconds kLong(20'000);

TEST(BusProbe, TellsASilentBusFromOneThatAnswersAndFromNone) {
  const TempFolder folder;
  const std::string silent = folder.path / "silent", other = folder.path / "other";
  const Listener keepsSilent(silent), keepsSilentToo('\0' + silent);
  EXPECT_TRUE(busHangs("unix:path=" + silent, kShort));
  EXPECT_TRUE(busHangs("unix:abstract=" + silent, kShort));
  EXPECT_TRUE(busHangs("unix:guid=7,path=" + silent + ",x=y;unix:path=/nowhere", kShort));
  EXPECT_TRUE(busHangs("unix:path=/nowhere;unix:path=" + silent, kShort))
      << "the first one that is there, also once nobody takes connections any more";
  for (const char* words : {"REJECTED EXTERNAL\r\n", ""}) {
    Listener talking(other);
    talking.answers(words);
    EXPECT_FALSE(busHangs("unix:path=/nowhere;unix:path=" + other, kLong)) << words;
    std::filesystem::remove(other);
  }
}

TEST(BusProbe, TakesWhatItCannotAskAsNotHanging) {
  for (const std::string& addresses :
       {std::string(), std::string("unix:path=/nowhere"), std::string("unix:path="),
        std::string("tcp:host=localhost,port=1"), std::string("unix:tmpdir=/tmp"), std::string(";;,=;"),
        "unix:path=/" + std::string(300, 'x')}) {
    EXPECT_FALSE(busHangs(addresses, kLong)) << addresses;
  }
}

}  // namespace
}  // namespace brimle
