#include "child_window.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "timing.h"
#include "workplace.h"

namespace brimle::bench {
namespace {

constexpr int kMostMilliseconds = 20000;

/// This process's variables, with folders of its own and Qt's log of the frames.
std::vector<std::string> environmentIn(const Path& folder) {
  std::vector<std::string> variables{"QT_FORCE_STDERR_LOGGING=1",
                                     "QT_LOGGING_RULES=qt.scenegraph.time.renderloop.debug=true"};
  for (const char* name : {"DATA", "CONFIG", "STATE", "CACHE"}) {
    variables.push_back("XDG_" + std::string(name) + "_HOME=" + (folder / name).string());
  }
  for (char** variable = ::environ; *variable; ++variable) variables.emplace_back(*variable);
  return variables;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

/// Starts a program whose standard error goes to `log`.
pid_t spawn(const Path& program, std::vector<std::string> environment, int log) {
  std::vector<std::string> arguments{program.string()};
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_adddup2(&actions, log, STDERR_FILENO);
  pid_t pid = 0;
  const int error = ::posix_spawn(&pid, program.c_str(), &actions, nullptr, pointersTo(arguments).data(),
                                  pointersTo(environment).data());
  ::posix_spawn_file_actions_destroy(&actions);
  require(error == 0, ("starting " + program.string()).c_str());
  return pid;
}

/// Reads until the text comes; false where the writer ends or is too slow.
bool readUntil(int file, std::string_view text) {
  std::string all;
  std::array<char, 4096> part;
  pollfd readable{file, POLLIN, 0};
  while (all.find(text) == std::string::npos) {
    if (::poll(&readable, 1, kMostMilliseconds) <= 0) return false;
    const ssize_t count = ::read(file, part.data(), part.size());
    if (count <= 0) return false;
    all.append(part.data(), static_cast<std::size_t>(count));
  }
  return true;
}

/// The number of the line "`name`: number" in a file of /proc; 0 where there is none.
double numberIn(const Path& file, std::string_view name) {
  std::ifstream lines(file);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(name) && line[name.size()] == ':') return std::stod(line.substr(name.size() + 1));
  }
  return 0;
}

}  // namespace

ChildWindow::ChildWindow(const Path& program, const Path& folder) {
  std::array<int, 2> ends{};
  require(::pipe2(ends.data(), O_CLOEXEC) == 0, "making a pipe");
  log_ = ends[0];
  const auto waitedBefore = waitedForProcessor("thread-self");
  const double seconds = secondsOf([&] {
    pid_ = spawn(program, environmentIn(folder), ends[1]);
    ::close(ends[1]);
    require(readUntil(log_, "Frame rendered"), ("waiting for the window of " + program.string()).c_str());
  });
  const auto waited =
      waitedForProcessor("thread-self") - waitedBefore + waitedForProcessor(std::to_string(pid_));
  secondsToFrame_ = seconds - std::chrono::duration<double>(waited).count();
}

ChildWindow::~ChildWindow() {
  ::kill(pid_, SIGKILL);
  ::waitpid(pid_, nullptr, 0);
  ::close(log_);
}

double ChildWindow::bytes() const {
  return numberIn("/proc/" + std::to_string(pid_) + "/smaps_rollup", "Pss") * 1024;
}

ChildWindow::Sleeps ChildWindow::sleeps() const {
  Sleeps sleeps;
  for (const auto& thread : std::filesystem::directory_iterator("/proc/" + std::to_string(pid_) + "/task")) {
    sleeps[thread.path().filename()] = numberIn(thread.path() / "status", "voluntary_ctxt_switches");
  }
  return sleeps;
}

}  // namespace brimle::bench
