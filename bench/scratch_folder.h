// A new folder on the disk, removed with all that is in it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include "platform/files.h"
#include "workplace.h"

namespace brimle::bench {

class ScratchFolder {
 public:
  ScratchFolder() {
    std::string name = BRIMLE_BENCH_FOLDER "/data-XXXXXX";
    require(::mkdtemp(name.data()), "making a folder in " BRIMLE_BENCH_FOLDER);
    path_ = name;
  }
  ~ScratchFolder() { std::filesystem::remove_all(path_); }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const Path& path() const { return path_; }

 private:
  Path path_;
};

}  // namespace brimle::bench
