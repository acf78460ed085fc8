// The port to updates: the one thing that a user can ask of them.
#pragma once

namespace brimle {

class UpdateController {
 public:
  virtual ~UpdateController() = default;

  /// Looks for a newer version because the user asked, and tells the result in a window of its own. Returns
  /// at once; asked again meanwhile, only brings that window forward.
  virtual void checkForUpdates() = 0;
};

}  // namespace brimle
