// Moving one element of a sequence to another place in it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace brimle {

/// The element at `from` then stands at `to`; those between move up or down by one. Both are indexes of
/// elements.
template <class Element>
void moveElement(std::vector<Element>& sequence, std::size_t from, std::size_t to) {
  const auto at = [&](std::size_t index) { return sequence.begin() + static_cast<std::ptrdiff_t>(index); };
  if (from < to) {
    std::rotate(at(from), at(from + 1), at(to + 1));
  } else {
    std::rotate(at(to), at(from), at(from + 1));
  }
}

}  // namespace brimle
