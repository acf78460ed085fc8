// Runs every fuzz target over its corpus, without a fuzzer, so that what was found once stays found. Each
// input is also run cut short after each of its bytes.
//   brimle_fuzz_replay tests/fuzz/corpus
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Target {
  const char* name;
  int (*run)(const std::uint8_t* data, std::size_t size);
};

}  // namespace

// The build lists the targets, as TARGET(name).
#define TARGET(name) extern "C" int fuzz_##name(const std::uint8_t* data, std::size_t size);
#include "fuzz_targets.inc"
#undef TARGET

namespace {

#define TARGET(name) {#name, fuzz_##name},
constexpr Target kTargets[] = {
#include "fuzz_targets.inc"
};
#undef TARGET

/// How many inputs there are; a name is printed before its run, so that the last one is what failed.
std::size_t replay(const Target& target, const fs::path& corpus) {
  std::size_t count = 0;
  for (const auto& entry : fs::directory_iterator(corpus / target.name)) {
    std::printf("%s\n", entry.path().c_str());
    std::fflush(stdout);
    std::ifstream file(entry.path(), std::ios::binary);
    const std::vector<std::uint8_t> bytes(std::istreambuf_iterator<char>(file), {});
    for (std::size_t size = 0; size <= bytes.size(); ++size) {
      const std::vector<std::uint8_t> start(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
      target.run(start.data(), size);
    }
    ++count;
  }
  return count;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const bool complete =
      std::ranges::all_of(kTargets, [&](const Target& target) { return replay(target, argv[1]) > 0; });
  if (!complete) std::fputs("a target has no corpus\n", stderr);
  return complete ? 0 : 1;
}
