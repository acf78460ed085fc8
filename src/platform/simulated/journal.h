// What the simulated desktop was asked to do, in order, as short texts that tests compare.
#pragma once

#include <string>
#include <vector>

namespace brimle {

using Journal = std::vector<std::string>;

}  // namespace brimle
