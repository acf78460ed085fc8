// An allocator for the whole program that refuses when it is told to.
#pragma once

namespace brimle {

struct Refusal {
  long after = -1;       ///< how many allocations are granted before it; negative: there is none
  bool lasting = false;  ///< all later ones are refused as well
  bool met = false;
};

extern Refusal refusal;

}  // namespace brimle
