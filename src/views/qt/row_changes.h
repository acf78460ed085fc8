// Applies the steps from one list of rows to another to a model's rows, telling Qt of each.
#pragma once

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "views/list_diff.h"

namespace brimle {

/// Runs refreshes of a model one after the other: a row that goes may close its editor, which changes the
/// store and asks for a refresh while one is under way.
class Refreshes {
 public:
  template <class Refresh>
  void run(Refresh refresh) {
    wanted_ = true;
    if (running_) return;
    running_ = true;
    while (std::exchange(wanted_, false)) refresh();
    running_ = false;
  }

 private:
  bool wanted_ = false;
  bool running_ = false;
};

/// A model's begin and end calls, which only the model itself may make. Rows are counted as Qt counts them.
struct RowChangeSignals {
  std::function<void(int first, int last)> beginRemove;
  std::function<void()> endRemove;
  std::function<void(int first, int last)> beginInsert;
  std::function<void()> endInsert;
  std::function<void(int from, int to)> beginMove;
  std::function<void()> endMove;
};

/// Makes `rows` the rows of `next`, step by step; rows that stay keep what they hold.
template <class Row>
void applyRowChanges(const std::vector<RowChange>& changes, std::vector<Row>& rows,
                     const std::vector<Row>& next, const RowChangeSignals& model) {
  const auto at = [&rows](std::size_t row) { return rows.begin() + static_cast<std::ptrdiff_t>(row); };
  for (const RowChange& change : changes) {
    const int first = static_cast<int>(change.at);
    const int last = static_cast<int>(change.at + change.count) - 1;
    switch (change.kind) {
      case RowChange::Kind::remove:
        model.beginRemove(first, last);
        rows.erase(at(change.at), at(change.at + change.count));
        model.endRemove();
        break;
      case RowChange::Kind::insert: {
        const auto from = next.begin() + static_cast<std::ptrdiff_t>(change.at);
        model.beginInsert(first, last);
        rows.insert(at(change.at), from, from + static_cast<std::ptrdiff_t>(change.count));
        model.endInsert();
        break;
      }
      case RowChange::Kind::move: {
        const bool down = change.at < change.to;
        model.beginMove(first, static_cast<int>(change.to) + (down ? 1 : 0));
        if (down) {
          std::rotate(at(change.at), at(change.at + 1), at(change.to + 1));
        } else {
          std::rotate(at(change.to), at(change.at), at(change.at + 1));
        }
        model.endMove();
        break;
      }
    }
  }
}

}  // namespace brimle
