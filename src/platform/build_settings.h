// What was decided when the program was built: constants of the build, handed to those who need them.
#pragma once

#include <string>

#include "base/version.h"

namespace brimle {

struct BuildSettings {
  Version version;             ///< of this program
  std::string updateFeed;      ///< the feed's https address; empty where the build has none
  std::string updateKey;       ///< the public key that its signatures are checked with, in base64
  bool packaged = false;       ///< a package manager installs the program and keeps it current
  std::string supportAddress;  ///< where feedback is mailed to
};

/// The settings of this build.
BuildSettings buildSettings();

}  // namespace brimle
