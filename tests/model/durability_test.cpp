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
constexpr std::string_view kNonsense = "no document";

/// Files of which an operation may fail. Every replace must do what it says.
struct FaultyFiles : PosixFiles {
  using PosixFiles::PosixFiles;

  bool replace(const Path& path, std::span<const std::string_view> pieces) override {
    std::string whole;
    for (const auto piece : pieces) whole += piece;
    const auto before = sound.read(path);
    const bool done = PosixFiles::replace(path, pieces);
    EXPECT_EQ(sound.read(path), done ? whole : before) << path;
    return done;
  }

  PosixFiles sound;
};

/// What is done while operations fail.
struct Deed {
  const char* what;
  const char* before;  ///< the lists of the day file, of another day after "@14 "; null: there is no file
  const char* prepare;
  const char* act;  ///< where it begins with "reopen", the fault may strike as the store is built
  bool linked = false;
};

constexpr Deed kDeeds[] = {
    {"the first save", nullptr, "", "add a"},
    {"a save", "A/n B | T | 20:S | 14:X+", "", "tick A"},
    {"a save of two lists", "A B", "", "defer B"},
    {"a save through a link", "A B", "", "delete A", true},
    {"the end of a day with its backup", nullptr, "add a !", "wait 54000"},
    {"a start on a new day", "@14 A! B", "", "reopen"},
    {"a start on a new day through a link", "@14 A! B", "", "reopen", true},
    {"a start on a file that is no document", kNonsense.data(), "", "reopen; add a"},
};

class Durability : public StoreTest {
 protected:
  /// What is in memory and on the disk along a deed while nothing fails.
  struct Course {
    std::string before, after, state, undone;
    int calls;
  };

  bool saves() const override { return !failing; }
  bool isNonsense() const { return deed.before && deed.before == kNonsense; }

  /// A new folder with seven backups and the deed's day file, and the store on it.
  void begin() {
    store.reset();
    calls.plan({});
    time.setClock(time.at("2026-06-15 09:00"));
    temporary.emplace(fs::is_directory(kMemory) ? kMemory : fs::temp_directory_path());
    folder = temporary->path / "Brimle";
    for (const auto& made : {folder / "Backups", temporary->path / "far"}) fs::create_directories(made);
    for (int day = 1; day <= 7; ++day) {
      write(folder / "Backups" / ("today-2026-06-0" + std::to_string(day) + ".json"), document("old"));
    }
    file = deed.linked ? temporary->path / "far" / "day" : folder / "today.json";
    if (deed.linked) fs::create_symlink("../far/day", folder / "today.json");
    if (deed.before) {
      const std::string_view lists = deed.before;
      const bool dated = lists.starts_with('@');
      bytes = isNonsense() ? lists : dated ? document(lists.substr(4), lists.substr(1, 2)) : document(lists);
      write(file, bytes);
      fs::permissions(file, kMode);
    }
    if (!startsUnderFault()) reopen();
    run(deed.prepare);
  }

  bool startsUnderFault() const { return std::string_view(deed.act).starts_with("reopen"); }

  void act(Fault fault) {
    failing = true;
    calls.plan(fault);
    run(deed.act);
    if (fault.kind == Fault::Kind::kill || fault.kind == Fault::Kind::powerCut) calls.end();
    count = calls.count;
    failed = calls.failed;
    calls.plan({});
    failing = false;
  }

  Course courseOfDeed() {
    begin();
    const std::string before = onDisk();
    act({});
    const std::string after = onDisk(), done = state();
    run("undo");
    return {before, after, done, state(), count};
  }

  /// Tries every deed with a fault at each operation it takes, and after the last.
  void forEachOperation(const std::function<void(const Course&, int)>& attempt) {
    for (const Deed& each : kDeeds) {
      deed = each;
      const Course course = courseOfDeed();
      EXPECT_GE(course.calls, 9) << deed.what;
      for (int at = 1; at <= course.calls + 1 && !HasFailure(); ++at) {
        SCOPED_TRACE(deed.what + (", operation " + std::to_string(at)));
        attempt(course, at);
      }
    }
  }

  /// The store goes on in memory after a fault, and on the disk with its next change.
  void expectGoesOn(const Course& course, Fault fault) {
    begin();
    const std::size_t descriptors = sound.list("/proc/self/fd")->size();
    act(fault);
    SCOPED_TRACE(std::string(failed) + " fails with " + std::to_string(fault.error));
    EXPECT_EQ(sound.list("/proc/self/fd")->size(), descriptors);
    const bool harmless = failed.empty() || (fault.error == EINTR && failed != "rename");
    EXPECT_THAT(onDisk(), AnyOf(course.after, harmless ? course.after : course.before));

    const bool loaded = state() == course.state;
    EXPECT_TRUE(loaded || (startsUnderFault() && !harmless)) << state();
    if (loaded) {
      for (const auto& [step, expected] : {std::pair("undo", course.undone), {"redo", course.state}}) {
        run(step);
        EXPECT_EQ(state(), expected);
      }
    }
    expectNextChangeSaved(!loaded);
  }

  /// After the program ended with the deed half done, the next start finds one document or the other.
  void expectSurvives(const Course& course, Fault fault) {
    begin();
    const pid_t child = ::fork();
    if (child == 0) act(fault);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    EXPECT_THAT(onDisk(), AnyOf(course.before, course.after));
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
    EXPECT_TRUE(isBackedUp(bytes) || !(isNonsense() || unread)) << "what was not loaded is kept";
    EXPECT_TRUE(!deed.before || fs::status(file).permissions() == kMode);
    const auto backups = sound.list(folder / "Backups").value();
    for (const std::string& name : backups) {
      const std::string backup = sound.read(folder / "Backups" / name).value();
      EXPECT_TRUE(backup == kNonsense || readDayFile(backup)) << name;
    }
    EXPECT_EQ(fs::is_symlink(folder / "today.json"), deed.linked);
    for (const auto& entry : fs::recursive_directory_iterator(temporary->path)) {
      EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
    }
  }

  /// The day file's day and lists; its bytes where it is no document.
  std::string onDisk() {
    const std::string found = sound.read(file).value_or("no file");
    const auto document = readDayFile(found);
    return document ? document->date + " " + shown(document->lists) : found;
  }

  static void write(const Path& path, std::string_view bytes) { std::ofstream(path) << bytes; }

  Deed deed{};
  FaultyCalls calls;
  FaultyFiles faultyFiles{calls};
  PosixFiles sound;
  std::optional<TempFolder> temporary;
  Path file;
  std::string bytes;  ///< of the deed's day file
  bool failing = false;
  int count = 0;            ///< how many operations the deed took
  std::string_view failed;  ///< the first of them that failed

  Durability() { disk = &faultyFiles; }
};

TEST_F(Durability, OutlastsAnyFaultOfAnyOperation) {
  forEachOperation([this](const Course& course, int at) {
    for (const bool lasting : {false, true}) {
      for (const int error : {ENOSPC, EIO, EDQUOT, EACCES, EROFS, EINTR}) {
        if (error == EINTR && lasting) continue;  // signals do stop
        expectGoesOn(course, {Fault::Kind::error, error, lasting, at});
      }
      expectGoesOn(course, {Fault::Kind::shortWrite, 0, lasting, at});
    }
  });
}

TEST_F(Durability, OutlastsTheProgramAndThePower) {
  forEachOperation([this](const Course& course, int at) {
    expectSurvives(course, {Fault::Kind::kill, 0, false, at});
    expectSurvives(course, {Fault::Kind::powerCut, 0, false, at});
  });
}

TEST_F(Durability, OutlastsADiskThatFillsUp) {
  deed = kDeeds[1];
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
  for (const Deed& each : {kDeeds[1], kDeeds[5]}) {
    deed = each;
    begin();
    fs::permissions(temporary->path, fs::perms(0755));
    fs::permissions(file, fs::perms(0644));
    for (const auto& name : {folder / "Backups", folder}) fs::permissions(name, fs::perms(0555));
    const uid_t user = ::geteuid();
    const uid_t refused = user == 0 ? 65534 : user;  // the superuser is refused nothing
    ASSERT_EQ(::seteuid(refused), 0);
    failing = true;
    const std::string before = onDisk();
    run(deed.act);
    ASSERT_EQ(::seteuid(user), 0);
    for (const auto& name : {folder, folder / "Backups"}) fs::permissions(name, fs::perms(0755));
    fs::permissions(file, kMode);
    failing = false;
    EXPECT_EQ(onDisk(), before);
    EXPECT_EQ(sound.list(folder / "Backups")->size(), 7u);
    expectNextChangeSaved(false);
  }
}

}  // namespace
}  // namespace brimle
