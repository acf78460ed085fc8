#include "model/folded_entries.h"

#include <cstring>

#include "base/text.h"

namespace brimle {
namespace {

/// Between two texts: a byte that stands in no UTF-8 text, so that nothing is found across it.
constexpr char kSeparator = '\xFF';

/// Where `query` stands; null where it does not. Of two bytes, memmem compares every place; memchr leaps to
/// the second of them, which tells more of a letter beyond ASCII than the first.
const char* findBytes(std::string_view bytes, std::string_view query) {
  if (query.size() != 2) {
    return static_cast<const char*>(memmem(bytes.data(), bytes.size(), query.data(), query.size()));
  }
  for (std::size_t from = 1; from < bytes.size();) {
    const void* second = std::memchr(bytes.data() + from, query[1], bytes.size() - from);
    if (!second) break;
    const char* first = static_cast<const char*>(second) - 1;
    if (*first == query[0]) return first;
    from = static_cast<std::size_t>(first - bytes.data()) + 2;
  }
  return nullptr;
}

/// The first place at or after `from` where `query` stands and is not followed by a mark that changes its
/// last character; npos where there is none.
std::size_t findWhole(std::string_view bytes, std::string_view query, std::size_t from) {
  while (from < bytes.size()) {
    const char* found = findBytes(bytes.substr(from), query);
    if (!found) break;
    const auto at = static_cast<std::size_t>(found - bytes.data());
    const std::string_view rest = bytes.substr(at + query.size());
    const bool isAsciiNext =
        !rest.empty() && static_cast<signed char>(rest.front()) >= 0;  // as nearly always
    if (isAsciiNext || !startsWithMark(rest)) return at;
    from = at + 1;
  }
  return std::string_view::npos;
}

}  // namespace

void FoldedEntries::add(const ArchivedItem& entry) {
  appendFolded(bytes_, entry.text);
  bytes_ += kSeparator;
  for (const std::string& note : entry.notes) {
    appendFolded(bytes_, note);
    bytes_ += kSeparator;
  }
  ends_.push_back(static_cast<std::uint32_t>(bytes_.size()));
  ids_.push_back(entry.id);
}

void FoldedEntries::add(const FoldedEntries& other, std::size_t first, std::size_t count) {
  if (count == 0) return;
  const std::size_t from = other.begin(first);
  const std::size_t to = other.ends_[first + count - 1];
  const std::size_t base = bytes_.size();
  bytes_ += std::string_view(other.bytes_).substr(from, to - from);
  for (std::size_t entry = first; entry < first + count; ++entry) {
    ends_.push_back(static_cast<std::uint32_t>(base + other.ends_[entry] - from));
    ids_.push_back(other.ids_[entry]);
  }
}

void FoldedEntries::find(std::string_view query, std::vector<Uuid>& matches) const {
  std::size_t entry = 0;
  for (std::size_t from = 0;;) {
    const std::size_t at = findWhole(bytes_, query, from);
    if (at == std::string_view::npos) return;
    // Where most entries match, the next one is near; where few do, the search above took the time.
    while (ends_[entry] <= at) ++entry;
    matches.push_back(ids_[entry]);
    from = ends_[entry];
  }
}

}  // namespace brimle
