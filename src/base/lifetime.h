// Callbacks that come to nothing once their owner is gone.
//
// An owner that hands out callbacks which may be called late keeps a Lifetime and hands out guarded ones:
// `time.after(delay, life_.guard([this] { ... }))`. A copy of an owner would share no lifetime, so there is
// none.
#pragma once

#include <memory>
#include <utility>

namespace brimle {

class Lifetime {
 public:
  Lifetime() = default;
  Lifetime(const Lifetime&) = delete;
  Lifetime& operator=(const Lifetime&) = delete;

  /// `action` as one that does nothing after the end or the next renewal of this.
  template <class Action>
  auto guard(Action action) const {
    return [alive = std::weak_ptr<void>(token_), action = std::move(action)](auto&&... arguments) mutable {
      if (!alive.expired()) action(std::forward<decltype(arguments)>(arguments)...);
    };
  }
  /// Ends what was guarded so far.
  void renew() { token_ = std::make_shared<char>(); }

 private:
  std::shared_ptr<void> token_ = std::make_shared<char>();
};

}  // namespace brimle
