#include "platform/desktop/posix_bus_probe.h"

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace brimle {
namespace {

enum class Answer { nobodyThere, silence, words };

constexpr std::string_view kTransport = "unix:";
/// Asks which ways to authenticate there are; the protocol begins with a NUL.
constexpr std::string_view kGreeting("\0AUTH\r\n", 7);

/// The value of a key in "key=value,key=value"; nothing where it is not there.
std::optional<std::string_view> valueOf(std::string_view key, std::string_view pairs) {
  while (!pairs.empty()) {
    const std::string_view pair = pairs.substr(0, pairs.find(','));
    if (pair.starts_with(key) && pair.substr(key.size()).starts_with('=')) return pair.substr(key.size() + 1);
    pairs.remove_prefix(std::min(pairs.size(), pair.size() + 1));
  }
  return std::nullopt;
}

/// The name of a socket as the kernel takes it: that of an abstract one begins with a NUL.
std::optional<std::string> socketName(std::string_view address) {
  if (!address.starts_with(kTransport)) return std::nullopt;
  address.remove_prefix(kTransport.size());
  if (const auto path = valueOf("path", address)) return std::string(*path);
  if (const auto name = valueOf("abstract", address)) return '\0' + std::string(*name);
  return std::nullopt;
}

Answer greet(int socket, const sockaddr_un& address, std::size_t length) {
  const auto failed = [] { return errno == EAGAIN ? Answer::silence : Answer::nobodyThere; };
  if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), static_cast<socklen_t>(length)) != 0)
    return failed();
  if (::send(socket, kGreeting.data(), kGreeting.size(), MSG_NOSIGNAL) < 0) return failed();
  char word = 0;
  const auto heard = ::recv(socket, &word, 1, 0);
  if (heard < 0) return failed();
  return heard > 0 ? Answer::words : Answer::nobodyThere;
}

Answer answerAt(const std::string& name, std::chrono::milliseconds patience) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (name.empty() || name.size() >= sizeof address.sun_path) return Answer::nobodyThere;
  std::memcpy(address.sun_path, name.data(), name.size());
  const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (socket < 0) return Answer::nobodyThere;
  const auto seconds = std::chrono::floor<std::chrono::seconds>(patience);
  const timeval limit{seconds.count(), std::chrono::microseconds(patience - seconds).count()};
  ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);  // also of the connecting
  ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  const Answer answer = greet(socket, address, offsetof(sockaddr_un, sun_path) + name.size());
  ::close(socket);
  return answer;
}

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

}  // namespace

/// As a client of the bus does it: the first address at which somebody takes the connection counts.
bool busHangs(std::string_view addresses, std::chrono::milliseconds patience) {
  while (!addresses.empty()) {
    const std::string_view address = addresses.substr(0, addresses.find(';'));
    const auto name = socketName(address);
    if (!name) return false;
    const Answer answer = answerAt(*name, patience);
    if (answer != Answer::nobodyThere) return answer == Answer::silence;
    addresses.remove_prefix(std::min(addresses.size(), address.size() + 1));
  }
  return false;
}

std::string sessionBusAddresses() {
  const std::string told = variable("DBUS_SESSION_BUS_ADDRESS");
  const std::string folder = variable("XDG_RUNTIME_DIR");
  return !told.empty() || folder.empty() ? told : "unix:path=" + folder + "/bus";
}

std::string systemBusAddresses() {
  const std::string told = variable("DBUS_SYSTEM_BUS_ADDRESS");
  return told.empty() ? "unix:path=/run/dbus/system_bus_socket" : told;
}

}  // namespace brimle
