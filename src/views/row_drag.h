// Reordering by drag: the dragged task takes the place of each row that the pointer enters, so that it
// travels through the list as the pointer does. A drag that ends anywhere, or is cancelled, is over.
#pragma once

#include <optional>

#include "model/store.h"

namespace brimle {

class RowDrag {
 public:
  /// `store` must outlive this.
  explicit RowDrag(Store& store) : store_(store) {}

  const std::optional<Uuid>& draggingID() const { return draggingID_; }

  void begin(const Uuid& id) { draggingID_ = id; }
  /// The pointer came over a row.
  void enter(const Uuid& target) {
    if (draggingID_ && *draggingID_ != target) store_.moveItem(*draggingID_, target);
  }
  void end() { draggingID_.reset(); }

  /// Text dropped onto the list becomes tasks; the drop of a row only ends its drag.
  void drop(std::string_view text) {
    if (draggingID_) return end();
    store_.addLines(text, false);
  }

 private:
  Store& store_;
  std::optional<Uuid> draggingID_;
};

}  // namespace brimle
