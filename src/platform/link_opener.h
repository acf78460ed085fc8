// The port to the programs that the user has chosen for links: the browser, the mail program.
#pragma once

#include <string>

namespace brimle {

class LinkOpener {
 public:
  virtual ~LinkOpener() = default;

  /// Has the link opened by its program, without waiting for it.
  virtual void open(const std::string& link) = 0;
};

}  // namespace brimle
