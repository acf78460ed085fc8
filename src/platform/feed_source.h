// The port to the network: fetches one small document. It judges nothing that is in it.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace brimle {

class FeedSource {
 public:
  virtual ~FeedSource() = default;

  using Done = std::function<void(std::optional<std::string> bytes)>;

  /// Fetches the document at an https address and calls `done` once from the main queue, never before this
  /// call returns: with all its bytes, at most `limit`, or with nothing where it could not be had whole.
  /// Whatever is under way when the source goes is dropped without a call.
  virtual void fetch(const std::string& address, std::size_t limit, Done done) = 0;
};

}  // namespace brimle
