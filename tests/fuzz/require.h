// What the fuzz targets assert with, in every build type: a promise that is broken ends the process.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace brimle {

inline void require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}

}  // namespace brimle
