// The LinkOpener port by xdg-open, which knows the user's programs, also in a sandbox. It is started in a
// session of its own and never waited for; where it is absent nothing happens.
#pragma once

#include "platform/link_opener.h"

namespace brimle {

class QtLinkOpener : public LinkOpener {
 public:
  /// Does nothing for a text that is no link with a scheme.
  void open(const std::string& link) override;
};

}  // namespace brimle
