// Runs every fuzz target over its corpus, without a fuzzer, so that what was found once stays found. Each
// input is also run cut short after each of its bytes.
//   brimle_fuzz_replay tests/fuzz/corpus
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

// The build lists the targets, as TARGET(name).
#define TARGET(name) extern "C" int fuzz_##name(const std::uint8_t* data, std::size_t size);
#include "fuzz_targets.inc"
#undef TARGET

namespace {

#define TARGET(name) {#name, fuzz_##name},
constexpr std::pair<const char*, int (*)(const std::uint8_t*, std::size_t)> kTargets[] = {
#include "fuzz_targets.inc"
};
#undef TARGET

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  for (const auto& [name, run] : kTargets) {
    const std::filesystem::directory_iterator corpus(std::filesystem::path(argv[1]) / name);
    for (const auto& entry : corpus) {
      // Told before it is run, so that the last one is what failed.
      std::printf("%s\n", entry.path().c_str());
      std::fflush(stdout);
      std::ifstream file(entry.path(), std::ios::binary);
      const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
      for (std::size_t size = 0; size <= bytes.size(); ++size) {
        // In memory of just its size, so that a sanitizer sees a read beyond it.
        const std::vector<std::uint8_t> start(bytes.begin(),
                                              bytes.begin() + static_cast<std::ptrdiff_t>(size));
        run(start.data(), size);
      }
    }
  }
  return 0;
}
