// The port to whether the program starts when its user logs in.
#pragma once

namespace brimle {

class LoginItem {
 public:
  enum class Status { notRegistered, enabled, requiresApproval, notFound };

  virtual ~LoginItem() = default;

  virtual Status status() const = 0;
  /// False where it cannot be done.
  virtual bool add() = 0;
  /// False where it cannot be done.
  virtual bool remove() = 0;
};

}  // namespace brimle
