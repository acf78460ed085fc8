// What reading an entry depends on besides its text: the day it is, the region and the interface locale.
#pragma once

#include <string>

#include "base/day.h"
#include "i18n/region.h"

namespace brimle {

struct EntryContext {
  Day today;
  Region region;
  /// ICU identifier of the interface language's locale, whose month names are read.
  std::string locale = "en_GB";
};

}  // namespace brimle
