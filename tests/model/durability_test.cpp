// What a store on a real disk keeps, whichever file operation fails and whenever the program ends.
#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <fstream>

#include "model/store_fixture.h"
#include "platform/faulty_calls.h"
#include "platform/temp_folder.h"

namespace brimle {
namespace {

namespace fs = std::filesystem;
using testing::AnyOf;

constexpr fs::perms kMode{0640};
/// A file system in memory: what counts here is the order of operations, not how long a disk takes for them.
const Path kMemory = "/dev/shm";
const std::string kNonsense = "no document";

/// What is done while operations fail.
struct Deed {
  const char* what;
  std::string bytes;  ///< of the day file; empty: there is none
  const char* prepare;
  const char* act;  ///< where it begins with "reopen", the fault may strike as the store is built
  bool linked = false;
};

const Deed kDeeds[] = {
    {"a save", document("A/n B | T | 20:S | 14:X+"), "", "tick A"},
    {"a save of two lists through a link", document("A B"), "", "defer B", true},
    {"the first save", "", "", "add a"},
    {"the end of a day with its backup", "", "add a !", "wait 54000"},
    {"a start on a new day through a link", document("@14 A! B"), "", "reopen", true},
    {"a start on a file that is no document", kNonsense, "", "reopen; add a"},
};

/// What may befall an operation, for once or for good; a signal does not last.
const Fault kFaults[] = {{Fault::Kind::error, ENOSPC},
                         {Fault::Kind::error, ENOSPC, true},
                         {Fault::Kind::error, EIO},
                         {Fault::Kind::error, EIO, true},
                         {Fault::Kind::error, EACCES},
                         {Fault::Kind::error, EACCES, true},
                         {Fault::Kind::error, EDQUOT},
                         {Fault::Kind::error, EROFS},
                         {Fault::Kind::error, EINTR},
                         {Fault::Kind::kill},
                         {Fault::Kind::shortWrite, 0, false},
                         {Fault::Kind::shortWrite, 0, true},
                         {Fault::Kind::powerCut}};

class Durability : public StoreTest {
 protected:
  Durability() { disk = &faultyFiles; }

  bool saves() const override { return !failing; }

  /// A new folder with seven backups and the deed's day file, and the store on it.
  void begin() {
    store.reset();
    time.setClock(time.at("2026-06-15 09:00"));
    temporary.emplace(fs::is_directory(kMemory) ? kMemory : fs::temp_directory_path());
    folder = temporary->path / "Brimle";
    fs::create_directories(folder / "Backups");
    for (const char day : std::string_view("1234567")) {
      std::ofstream(folder / "Backups" / ("today-2026-06-0" + std::string(1, day) + ".json"))
          << document("old");
    }
    file = deed.linked ? temporary->path / "far" : folder / "today.json";
    if (deed.linked) fs::create_symlink("../far", folder / "today.json");
    if (!deed.bytes.empty()) {
      std::ofstream(file) << deed.bytes;
      fs::permissions(file, kMode);
    }
    if (!startsUnderFault()) reopen();
    run(deed.prepare);
  }

  bool startsUnderFault() const { return std::string_view(deed.act).starts_with("reopen"); }

  /// Does the deed, which may end the program. Gives the number of operations and the first that failed.
  std::pair<int, std::string> strike(Fault fault) {
    failing = true;
    calls.plan(fault);
    run(deed.act);
    if (endsProgram(fault)) calls.end();
    const std::pair taken(calls.count, std::string(calls.failed));
    calls.plan({});
    failing = false;
    return taken;
  }

  static bool endsProgram(Fault fault) {
    return fault.kind == Fault::Kind::kill || fault.kind == Fault::Kind::powerCut;
  }

  /// The store goes on in memory after a fault, and on the disk with its next change. `after` is what the
  /// deed leads to, on the disk and in memory.
  void expectGoesOn(const std::string& before, const std::pair<std::string, std::string>& after,
                    Fault fault) {
    const std::size_t descriptors = sound.list("/proc/self/fd")->size();
    const std::string failed = strike(fault).second;
    SCOPED_TRACE(failed + " fails with " + std::to_string(fault.error));
    EXPECT_EQ(sound.list("/proc/self/fd")->size(), descriptors);
    const bool harmless = failed.empty() || (fault.error == EINTR && failed != "rename");
    EXPECT_THAT(onDisk(), AnyOf(after.first, harmless ? after.first : before));
    const Path temporaryFile = file.parent_path() / ("." + file.filename().string() + ".tmp");
    EXPECT_FALSE(!fault.lasting && failed != "unlink" && sound.exists(temporaryFile));
    const bool loaded = state() == after.second;
    EXPECT_TRUE(loaded || (startsUnderFault() && !harmless)) << state();
    expectNextChangeSaved(!loaded);
  }

  /// After the program ended with the deed half done, the next start finds one document or the other.
  void expectSurvives(const std::string& before, const std::string& after, Fault fault) {
    const pid_t child = ::fork();
    if (child == 0) strike(fault);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    EXPECT_THAT(onDisk(), AnyOf(before, after));
    store.reset();
    time.setClock(time.at("2026-06-16 09:00"));
    reopen();
    expectNextChangeSaved(false);
  }

  void expectNextChangeSaved(bool unread) {
    run("add z");
    expectSaved();
    const Lists was = store->lists();
    reopen();
    EXPECT_TRUE(store->lists() == was) << state();
    EXPECT_TRUE(isBackedUp(deed.bytes) || !(unread || deed.bytes == kNonsense))
        << "what was not loaded is kept";
    EXPECT_TRUE(deed.bytes.empty() || fs::status(file).permissions() == kMode);
    EXPECT_EQ(fs::is_symlink(folder / "today.json"), deed.linked);
    for (const auto& entry : fs::recursive_directory_iterator(temporary->path)) {
      if (entry.is_directory()) continue;
      const std::string found = sound.read(entry.path()).value();
      EXPECT_TRUE(found == kNonsense || readDayFile(found)) << entry.path();
      EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
    }
  }

  /// The day file's day and lists; its bytes where it is no document.
  std::string onDisk() {
    const std::string found = sound.read(file).value_or("no file");
    const auto document = readDayFile(found);
    return document ? document->date + " " + shown(document->lists) : found;
  }

  Deed deed{};
  FaultyCalls calls;
  PosixFiles faultyFiles{calls};
  PosixFiles sound;
  std::optional<TempFolder> temporary;
  Path file;
  bool failing = false;
};

TEST_F(Durability, OutlastsAnyFaultOfAnyOperationAndTheProgramsEnd) {
  for (const Deed& each : kDeeds) {
    deed = each;
    begin();
    const std::string before = onDisk();
    const int operations = strike({}).first;
    const std::pair after(onDisk(), state());
    for (int at = 1; at <= operations + 1 && !HasFailure(); ++at) {
      SCOPED_TRACE(deed.what + (", operation " + std::to_string(at)));
      for (Fault fault : kFaults) {
        fault.at = at;
        begin();
        endsProgram(fault) ? expectSurvives(before, after.first, fault) : expectGoesOn(before, after, fault);
      }
    }
  }
}

TEST_F(Durability, OutlastsADiskThatFillsUp) {
  deed = kDeeds[0];
  begin();
  const std::string before = onDisk();
  rlimit unlimited{};
  ::getrlimit(RLIMIT_FSIZE, &unlimited);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{4096, unlimited.rlim_max};
  failing = true;
  ::setrlimit(RLIMIT_FSIZE, &small);
  store->addLines(std::string(10'000, 'x'), false);
  ::setrlimit(RLIMIT_FSIZE, &unlimited);
  std::signal(SIGXFSZ, handler);
  failing = false;
  EXPECT_EQ(onDisk(), before);
  EXPECT_EQ(store->items().size(), 3u);
  expectNextChangeSaved(false);
}

TEST_F(Durability, OutlastsAFolderThatMayOnlyBeRead) {
  for (const Deed& each : {kDeeds[0], kDeeds[3]}) {
    deed = each;
    begin();
    const std::string before = onDisk();
    fs::permissions(temporary->path, fs::perms(0755));
    for (const auto& name : {folder / "Backups", folder}) fs::permissions(name, fs::perms(0555));
    const uid_t user = ::geteuid();
    const uid_t refused = user == 0 ? 65534 : user;  // the superuser is refused nothing
    ASSERT_EQ(::seteuid(refused), 0);
    failing = true;
    run(deed.act);
    ASSERT_EQ(::seteuid(user), 0);
    for (const auto& name : {folder, folder / "Backups"}) fs::permissions(name, fs::perms(0755));
    failing = false;
    EXPECT_EQ(onDisk(), before);
    expectNextChangeSaved(false);
  }
}

}  // namespace
}  // namespace brimle
