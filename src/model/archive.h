// The archive: a sequence of days, newest first, as a value that shares what did not change.
//
// A day is one immutable node held by a shared pointer. Days stand in blocks of about a month; a block keeps
// the encoded bytes of its days, made once, and what a search compares, made when it is first needed. A copy
// of the archive copies one pointer, a change to the newest day makes one new block, and a save hands over
// the blocks' bytes as they are.
#pragma once

#include <cstdint>
#include <iterator>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "model/records.h"

namespace brimle {

class Archive {
  struct Block;
  class BlockBuilder;

 public:
  Archive() = default;
  /// Takes days in their order, newest first.
  explicit Archive(std::vector<ArchiveDay> days);

  class Iterator {
   public:
    using value_type = ArchiveDay;
    using difference_type = std::ptrdiff_t;
    using iterator_category = std::forward_iterator_tag;

    const ArchiveDay& operator*() const;
    const ArchiveDay* operator->() const { return &**this; }
    Iterator& operator++();
    Iterator operator++(int);
    bool operator==(const Iterator&) const = default;

    /// The day as its shared node: the same pointer means the same, unchanged day.
    const std::shared_ptr<const ArchiveDay>& node() const;

   private:
    friend class Archive;
    const std::shared_ptr<const Block>* block_ = nullptr;
    std::size_t day_ = 0;
  };

  Iterator begin() const;
  Iterator end() const;
  bool empty() const { return !blocks_; }
  std::size_t dayCount() const;
  /// The newest day; the archive must not be empty.
  const ArchiveDay& front() const { return *begin(); }

  /// This archive with entries added to the end of its first day where that is `date`, else as a new first
  /// day.
  Archive withEntries(const std::string& date, std::vector<ArchivedItem> entries) const;

  /// This archive without the entries among the ids, and without the days that are empty then. The entries
  /// are handed over in their order.
  Archive without(const std::unordered_set<Uuid>& ids, std::vector<ArchivedItem>& removed) const;

  /// The ids of the entries of which the text or a note contains `query`, which is folded(); all where it is
  /// empty.
  std::vector<Uuid> matchingIDs(std::string_view query) const;
  /// Prepares the search in up to `most` blocks that were not searched before; true where none is left.
  /// Otherwise the first search does it.
  bool prepareSearch(std::size_t most) const;

  /// Appends the days as JSON array elements to `pieces`, as views that live as long as this archive; the
  /// first byte of the first piece is the first element's.
  void appendEncoded(std::vector<std::string_view>& pieces) const;

  bool operator==(const Archive& other) const;

 private:
  using BlockPtr = std::shared_ptr<const Block>;

  static BlockPtr withFront(ArchiveDay front, const Block* rest, std::size_t skip);
  static BlockPtr blockWithout(const BlockPtr& block, const std::unordered_set<Uuid>& ids,
                               std::vector<ArchivedItem>& removed);

  /// The blocks, none of them empty, and the bytes of each, side by side so that a save reads them in a row.
  struct Blocks {
    std::vector<BlockPtr> list;
    std::vector<std::string_view> pieces;
  };

  static std::shared_ptr<const Blocks> share(std::vector<BlockPtr> blocks);
  const std::vector<BlockPtr>& blocks() const;

  std::shared_ptr<const Blocks> blocks_;  ///< null for the empty archive
};

}  // namespace brimle
