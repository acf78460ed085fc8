#include "model/archive.h"

#include <algorithm>
#include <utility>

#include "model/json_writer.h"

namespace brimle {
namespace {

/// A month of days: small enough to copy for a change of the newest, large enough that ten years are some
/// hundred blocks.
constexpr std::size_t kBlockDays = 32;

}  // namespace

struct Archive::Block {
  std::vector<std::shared_ptr<const ArchiveDay>> days;
  std::string json;            ///< each day's element with a comma before it
  std::size_t frontLength = 0;  ///< how much of `json` is the first day's

  /// A new first day, before the days of `rest` from `skip` on.
  static BlockPtr make(ArchiveDay front, const Block* rest, std::size_t skip) {
    auto block = std::make_shared<Block>();
    std::string_view restJson;
    if (rest) restJson = std::string_view(rest->json).substr(skip == 0 ? 0 : rest->frontLength);
    block->json.reserve(restJson.size() + 128 * (front.items.size() + 1));
    block->json += ',';
    json::append(block->json, front);
    block->frontLength = block->json.size();
    block->json += restJson;
    block->days.reserve(1 + (rest ? rest->days.size() - skip : 0));
    block->days.push_back(std::make_shared<const ArchiveDay>(std::move(front)));
    if (rest) {
      block->days.insert(block->days.end(), rest->days.begin() + static_cast<std::ptrdiff_t>(skip),
                         rest->days.end());
    }
    block->json.shrink_to_fit();
    return block;
  }

  static BlockPtr make(std::span<ArchiveDay> days) {
    auto block = std::make_shared<Block>();
    block->days.reserve(days.size());
    for (ArchiveDay& day : days) {
      block->json += ',';
      json::append(block->json, day);
      if (block->days.empty()) block->frontLength = block->json.size();
      block->days.push_back(std::make_shared<const ArchiveDay>(std::move(day)));
    }
    block->json.shrink_to_fit();
    return block;
  }
};

Archive::Archive(std::vector<ArchiveDay> days) {
  // The newest days come in the block that is not full, so that it can grow at its front.
  std::span<ArchiveDay> rest(days);
  while (!rest.empty()) {
    const std::size_t partial = rest.size() % kBlockDays;
    const std::size_t count = partial > 0 ? partial : kBlockDays;
    blocks_.push_back(Block::make(rest.first(count)));
    rest = rest.subspan(count);
  }
}

const ArchiveDay& Archive::Iterator::operator*() const { return *node(); }

const std::shared_ptr<const ArchiveDay>& Archive::Iterator::node() const { return (*block_)->days[day_]; }

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
  first.block_ = blocks_.data();
  return first;
}

Archive::Iterator Archive::end() const {
  Iterator last;
  last.block_ = blocks_.data() + blocks_.size();
  return last;
}

std::size_t Archive::dayCount() const {
  std::size_t count = 0;
  for (const auto& block : blocks_) count += block->days.size();
  return count;
}

Archive Archive::withEntries(const std::string& date, std::vector<ArchivedItem> entries) const {
  Archive result = *this;
  if (!empty() && front().date == date) {
    ArchiveDay day = front();
    day.items.insert(day.items.end(), std::make_move_iterator(entries.begin()),
                     std::make_move_iterator(entries.end()));
    result.blocks_.front() = Block::make(std::move(day), blocks_.front().get(), 1);
    return result;
  }
  ArchiveDay day{date, std::move(entries)};
  if (!empty() && blocks_.front()->days.size() < kBlockDays) {
    result.blocks_.front() = Block::make(std::move(day), blocks_.front().get(), 0);
  } else {
    result.blocks_.insert(result.blocks_.begin(), Block::make(std::move(day), nullptr, 0));
  }
  return result;
}

void Archive::appendEncoded(std::vector<std::string_view>& pieces) const {
  pieces.reserve(pieces.size() + blocks_.size());
  for (const auto& block : blocks_) {
    std::string_view json = block->json;
    if (&block == &blocks_.front()) json.remove_prefix(1);
    pieces.push_back(json);
  }
}

bool Archive::operator==(const Archive& other) const {
  if (blocks_ == other.blocks_) return true;
  return dayCount() == other.dayCount() && std::equal(begin(), end(), other.begin());
}

}  // namespace brimle
