// Observers: a Signal calls everyone who subscribed, in the order they came, until their Subscription ends.
// A subscription may end, and new ones may begin, while the signal is calling.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace brimle {

/// Keeps one observer subscribed; ends it when destroyed. May outlive the signal.
class Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::shared_ptr<void> observer) : observer_(std::move(observer)) {}

 private:
  std::shared_ptr<void> observer_;
};

template <class... Args>
class Signal {
 public:
  using Observer = std::function<void(Args...)>;

  [[nodiscard]] Subscription subscribe(Observer observer) {
    auto kept = std::make_shared<Observer>(std::move(observer));
    observers_.push_back(kept);
    return Subscription(kept);
  }

  void notify(Args... args) {
    std::erase_if(observers_, [](const auto& observer) { return observer.expired(); });
    const auto called = observers_;
    for (const auto& weak : called) {
      if (const auto observer = weak.lock()) (*observer)(args...);
    }
  }

 private:
  std::vector<std::weak_ptr<Observer>> observers_;
};

}  // namespace brimle
