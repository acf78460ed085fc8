#include "model/archive.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "model/folded_entries.h"
#include "model/json_writer.h"

namespace brimle {
namespace {

/// A month of days: small enough to copy for a change of the newest, large enough that ten years are some
/// hundred blocks.
constexpr std::size_t kBlockDays = 32;

}  // namespace

struct Archive::Block {
  std::vector<std::shared_ptr<const ArchiveDay>> days;
  std::string json;                     ///< each day's element with a comma before it
  std::vector<std::uint32_t> jsonEnds;  ///< where each day ends in `json`
  /// What a search compares, entry by entry; made when it is first needed.
  mutable std::optional<FoldedEntries> folded;

  const FoldedEntries& searchable() const {
    if (folded) return *folded;
    FoldedEntries made;
    for (const auto& day : days) {
      for (const ArchivedItem& entry : day->items) made.add(entry);
    }
    return folded.emplace(std::move(made));
  }
};

/// Makes a block of new days and of days that another block has, whose work is taken over as it is.
class Archive::BlockBuilder {
 public:
  /// Where `source` was searched, the new block is made ready for it too.
  explicit BlockBuilder(const Block* source = nullptr) {
    if (source && source->folded) block_->folded.emplace();
  }

  void add(ArchiveDay day) {
    block_->json += ',';
    json::append(block_->json, day);
    if (block_->folded) {
      for (const ArchivedItem& entry : day.items) block_->folded->add(entry);
    }
    finishDay(std::make_shared<const ArchiveDay>(std::move(day)));
  }

  /// Adds a day of the block; `firstEntry` counts the entries of the days before it there.
  void add(const Block& from, std::size_t day, std::size_t firstEntry) {
    const std::size_t begin = day == 0 ? 0 : from.jsonEnds[day - 1];
    block_->json += std::string_view(from.json).substr(begin, from.jsonEnds[day] - begin);
    if (block_->folded) block_->folded->add(*from.folded, firstEntry, from.days[day]->items.size());
    finishDay(from.days[day]);
  }

  bool empty() const { return block_->days.empty(); }
  std::shared_ptr<const Block> build() {
    block_->json.shrink_to_fit();
    return std::move(block_);
  }

 private:
  void finishDay(std::shared_ptr<const ArchiveDay> day) {
    block_->days.push_back(std::move(day));
    block_->jsonEnds.push_back(static_cast<std::uint32_t>(block_->json.size()));
  }

  std::shared_ptr<Block> block_ = std::make_shared<Block>();
};

/// What an archive holds of these blocks; null where there are none.
std::shared_ptr<const Archive::Blocks> Archive::share(std::vector<BlockPtr> blocks) {
  if (blocks.empty()) return nullptr;
  Blocks shared{std::move(blocks), {}};
  shared.pieces.reserve(shared.list.size());
  for (const BlockPtr& block : shared.list) shared.pieces.push_back(block->json);
  shared.pieces.front().remove_prefix(1);  // no comma before the first element
  return std::make_shared<const Blocks>(std::move(shared));
}

const std::vector<Archive::BlockPtr>& Archive::blocks() const {
  static const std::vector<BlockPtr> none;
  return blocks_ ? blocks_->list : none;
}

Archive::Archive(std::vector<ArchiveDay> days) {
  std::vector<BlockPtr> blocks;
  // The newest days come in the block that is not full, so that it can grow at its front.
  std::span<ArchiveDay> rest(days);
  while (!rest.empty()) {
    const std::size_t partial = rest.size() % kBlockDays;
    const std::size_t count = partial > 0 ? partial : kBlockDays;
    BlockBuilder block;
    for (ArchiveDay& day : rest.first(count)) block.add(std::move(day));
    blocks.push_back(block.build());
    rest = rest.subspan(count);
  }
  blocks_ = share(std::move(blocks));
}

const ArchiveDay& Archive::Iterator::operator*() const {
  return *node();
}

const std::shared_ptr<const ArchiveDay>& Archive::Iterator::node() const {
  return (*block_)->days[day_];
}

Archive::Iterator& Archive::Iterator::operator++() {
  if (++day_ == (*block_)->days.size()) {
    ++block_;
    day_ = 0;
  }
  return *this;
}

Archive::Iterator Archive::Iterator::operator++(int) {
  Iterator before = *this;
  ++*this;
  return before;
}

Archive::Iterator Archive::begin() const {
  Iterator first;
  first.block_ = blocks().data();
  return first;
}

Archive::Iterator Archive::end() const {
  Iterator last;
  last.block_ = blocks().data() + blocks().size();
  return last;
}

std::size_t Archive::dayCount() const {
  std::size_t count = 0;
  for (const auto& block : blocks()) count += block->days.size();
  return count;
}

/// A block with a new first day before the days of `rest` from `skip` on.
Archive::BlockPtr Archive::withFront(ArchiveDay front, const Block* rest, std::size_t skip) {
  BlockBuilder block(rest);
  block.add(std::move(front));
  std::size_t firstEntry = 0;
  for (std::size_t day = 0; rest && day < rest->days.size(); ++day) {
    if (day >= skip) block.add(*rest, day, firstEntry);
    firstEntry += rest->days[day]->items.size();
  }
  return block.build();
}

Archive Archive::withEntries(const std::string& date, std::vector<ArchivedItem> entries) const {
  std::vector<BlockPtr> changed = blocks();
  if (!empty() && front().date == date) {
    ArchiveDay day = front();
    day.items.insert(day.items.end(), std::make_move_iterator(entries.begin()),
                     std::make_move_iterator(entries.end()));
    changed.front() = withFront(std::move(day), changed.front().get(), 1);
  } else if (!empty() && changed.front()->days.size() < kBlockDays) {
    changed.front() = withFront({date, std::move(entries)}, changed.front().get(), 0);
  } else {
    changed.insert(changed.begin(), withFront({date, std::move(entries)}, nullptr, 0));
  }
  Archive result;
  result.blocks_ = share(std::move(changed));
  return result;
}

/// The block without the entries among the ids and without empty days; itself where nothing goes, none where
/// nothing stays.
Archive::BlockPtr Archive::blockWithout(const BlockPtr& block, const std::unordered_set<Uuid>& ids,
                                        std::vector<ArchivedItem>& removed) {
  const auto goes = [&](const ArchivedItem& entry) { return ids.contains(entry.id); };
  const auto changes = [&](const auto& day) {
    return day->items.empty() || std::any_of(day->items.begin(), day->items.end(), goes);
  };
  if (std::none_of(block->days.begin(), block->days.end(), changes)) return block;
  BlockBuilder rest(block.get());
  std::size_t firstEntry = 0;
  for (std::size_t index = 0; index < block->days.size(); ++index) {
    const auto& day = block->days[index];
    if (changes(day)) {
      ArchiveDay thinned{day->date, {}};
      for (const ArchivedItem& entry : day->items) (goes(entry) ? removed : thinned.items).push_back(entry);
      if (!thinned.items.empty()) rest.add(std::move(thinned));
    } else {
      rest.add(*block, index, firstEntry);
    }
    firstEntry += day->items.size();
  }
  return rest.empty() ? nullptr : rest.build();
}

Archive Archive::without(const std::unordered_set<Uuid>& ids, std::vector<ArchivedItem>& removed) const {
  std::vector<BlockPtr> changed;
  for (const BlockPtr& block : blocks()) {
    if (auto rest = blockWithout(block, ids, removed)) changed.push_back(std::move(rest));
  }
  Archive result;
  result.blocks_ = share(std::move(changed));
  return result;
}

std::vector<Uuid> Archive::matchingIDs(std::string_view query) const {
  std::vector<Uuid> ids;
  if (query.empty()) {
    for (const ArchiveDay& day : *this) {
      for (const ArchivedItem& entry : day.items) ids.push_back(entry.id);
    }
    return ids;
  }
  for (const BlockPtr& block : blocks()) block->searchable().find(query, ids);
  return ids;
}

bool Archive::prepareSearch(std::size_t most) const {
  for (const BlockPtr& block : blocks()) {
    if (block->folded) continue;
    if (most-- == 0) return false;
    block->searchable();
  }
  return true;
}

void Archive::appendEncoded(std::vector<std::string_view>& pieces) const {
  if (blocks_) pieces.insert(pieces.end(), blocks_->pieces.begin(), blocks_->pieces.end());
}

bool Archive::operator==(const Archive& other) const {
  if (blocks_ == other.blocks_) return true;
  return dayCount() == other.dayCount() && std::equal(begin(), end(), other.begin());
}

}  // namespace brimle
