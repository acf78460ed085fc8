// A list model that goes from one list of rows to the next step by step, so that the view animates the rows
// that change and keeps its place among the others. What a row is, and what it shows, is the derived model's.
#pragma once

#include <QAbstractListModel>
#include <algorithm>
#include <utility>
#include <vector>

#include "base/move_element.h"
#include "views/list_diff.h"

namespace brimle {

/// The identities of rows, in their order; `id` gives that of one.
template <class Row, class Id>
std::vector<Uuid> idsOf(const std::vector<Row>& rows, Id id) {
  std::vector<Uuid> ids(rows.size());
  std::ranges::transform(rows, ids.begin(), id);
  return ids;
}

class RowModel : public QAbstractListModel {
 protected:
  /// Runs refreshes one after the other: a row that goes may close its editor, which changes the store and
  /// asks for a refresh while one is under way.
  template <class Refresh>
  void runInTurn(Refresh refresh) {
    wanted_ = true;
    if (running_) return;
    running_ = true;
    while (std::exchange(wanted_, false)) refresh();
    running_ = false;
  }

  /// Makes `rows` the rows of `next`; those that stay keep what they hold.
  template <class Row>
  void apply(const std::vector<RowChange>& changes, std::vector<Row>& rows, const std::vector<Row>& next) {
    for (const RowChange& change : changes) {
      switch (change.kind) {
        case RowChange::Kind::remove: remove(change, rows); break;
        case RowChange::Kind::insert: insert(change, rows, next); break;
        case RowChange::Kind::move: move(change, rows); break;
      }
    }
  }

 private:
  static int first(const RowChange& change) { return static_cast<int>(change.at); }
  static int last(const RowChange& change) { return static_cast<int>(change.at + change.count) - 1; }
  template <class Rows>
  static auto at(Rows& rows, std::size_t row) {
    return rows.begin() + static_cast<std::ptrdiff_t>(row);
  }

  template <class Row>
  void remove(const RowChange& change, std::vector<Row>& rows) {
    beginRemoveRows({}, first(change), last(change));
    rows.erase(at(rows, change.at), at(rows, change.at + change.count));
    endRemoveRows();
  }

  template <class Row>
  void insert(const RowChange& change, std::vector<Row>& rows, const std::vector<Row>& next) {
    beginInsertRows({}, first(change), last(change));
    rows.insert(at(rows, change.at), at(next, change.at), at(next, change.at + change.count));
    endInsertRows();
  }

  template <class Row>
  void move(const RowChange& change, std::vector<Row>& rows) {
    const bool down = change.at < change.to;
    beginMoveRows({}, first(change), first(change), {}, static_cast<int>(change.to) + (down ? 1 : 0));
    moveElement(rows, change.at, change.to);
    endMoveRows();
  }

  bool wanted_ = false;
  bool running_ = false;
};

}  // namespace brimle
