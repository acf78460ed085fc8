// The FeedSource port in memory: documents by address, delivered when the test says so.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/feed_source.h"

namespace brimle {

class SimulatedFeedSource : public FeedSource {
 public:
  /// What is to be had; every other address fails.
  std::map<std::string, std::string> documents;
  /// Every address that was asked for.
  std::vector<std::string> asked;

  void fetch(const std::string& address, std::size_t limit, Done done) override {
    asked.push_back(address);
    waiting_.push_back({address, limit, std::move(done)});
  }

  /// Answers the oldest request. False where none waits.
  bool deliver() {
    if (waiting_.empty()) return false;
    const Request request = std::move(waiting_.front());
    waiting_.pop_front();
    request.done(answer(request));
    return true;
  }
  /// Answers until nobody asks any more.
  void deliverAll() {
    while (deliver()) {
    }
  }

 private:
  struct Request {
    std::string address;
    std::size_t limit;
    Done done;
  };

  std::optional<std::string> answer(const Request& request) const {
    const auto found = documents.find(request.address);
    const bool had = request.address.starts_with("https://") && found != documents.end() &&
                     found->second.size() <= request.limit;
    return had ? std::optional(found->second) : std::nullopt;
  }

  std::deque<Request> waiting_;
};

}  // namespace brimle
