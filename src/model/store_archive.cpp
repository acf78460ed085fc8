// What the user does to the archive: search it, delete from it, bring tasks back.
#include <utility>

#include "base/text.h"
#include "model/store.h"

namespace brimle {
namespace {

/// A slice of preparing the search, in blocks: they fold in well under a millisecond.
constexpr std::size_t kPreparedAtOnce = 8;

}  // namespace

Store::Ids Store::archivedIDsInOrder(std::string_view matching) const {
  return archive().matchingIDs(folded(trimmed(matching)));
}

void Store::prepareSearch() {
  if (archive().prepareSearch(kPreparedAtOnce)) return;
  time_.after(Seconds(0), life_.guard([this] { prepareSearch(); }));
}

void Store::removeArchived(const std::unordered_set<Uuid>& ids) {
  std::vector<ArchivedItem> removed;
  Archive rest = archive().without(ids, removed);
  if (!removed.empty()) setArchive(std::move(rest));
}

void Store::bringBackMany(const std::unordered_set<Uuid>& ids) {
  std::vector<ArchivedItem> restored;
  Archive rest = archive().without(ids, restored);
  if (restored.empty()) return;
  auto list = items();
  for (ArchivedItem& entry : restored) {
    list.push_back(makeTask(std::move(entry.text)));
    list.back().notes = std::move(entry.notes);
  }
  const Operation operation(*this);
  setArchive(std::move(rest));
  setItems(std::move(list));
}

}  // namespace brimle
