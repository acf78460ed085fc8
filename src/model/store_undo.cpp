// Undo and redo: whole-state steps, kept in memory, dropped when the day rolls over.
#include <utility>

#include "model/store.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;

/// A change less than this after the one before it belongs to the same step; the interval slides.
constexpr auto kCoalescingInterval = 300ms;
constexpr std::size_t kUndoDepth = 100;

}  // namespace

void Store::pushUndo() {
  if (loading_ || suppressUndo_) return;
  const Instant now = time_.now();
  const bool merges = snapshotTaken_ || (lastSnapshotAt_ && now - *lastSnapshotAt_ < kCoalescingInterval);
  if (!merges) {
    undoStack_.push_back(lists_);
    if (undoStack_.size() > kUndoDepth) undoStack_.pop_front();
    redoStack_.clear();
  }
  snapshotTaken_ = true;
  lastSnapshotAt_ = now;
}

void Store::undo() {
  if (undoStack_.empty()) return desktop_.beep();
  redoStack_.push_back(lists_);
  Snapshot snapshot = std::move(undoStack_.back());
  undoStack_.pop_back();
  restore(std::move(snapshot));
}

void Store::redo() {
  if (redoStack_.empty()) return desktop_.beep();
  undoStack_.push_back(lists_);
  Snapshot snapshot = std::move(redoStack_.back());
  redoStack_.pop_back();
  restore(std::move(snapshot));
}

void Store::restore(Snapshot snapshot) {
  const Operation operation(*this);
  suppressUndo_ = true;
  setItems(std::move(snapshot.items));
  setArchive(std::move(snapshot.archive));
  setTomorrow(std::move(snapshot.tomorrow));
  setScheduled(std::move(snapshot.scheduled));
  suppressUndo_ = false;
  lastSnapshotAt_.reset();
}

}  // namespace brimle
