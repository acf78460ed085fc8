// A folder of its own for a test on the real file system; gone with everything in it when the test ends.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace brimle {

struct TempFolder {
  explicit TempFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
    std::string name = parent / "brimle-test-XXXXXX";
    if (::mkdtemp(name.data()) == nullptr) std::abort();
    path = name;
  }
  ~TempFolder() { std::filesystem::remove_all(path); }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::filesystem::path path;
};

}  // namespace brimle
