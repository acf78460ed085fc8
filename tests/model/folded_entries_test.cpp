// Finding a few bytes in the texts of archived entries.
#include "model/folded_entries.h"

#include <gtest/gtest.h>

#include "base/text.h"

namespace brimle {
namespace {

TEST(FoldedEntries, FindsTwoBytesWhereverTheyStand) {
  struct Case {
    const char* text;
    const char* query;
    bool found;
    const char* note = "";
  };
  for (const auto& [text, query, found, note] :
       {Case{"an", "an", true}, Case{"nan", "an", true}, Case{"on an", "an", true}, Case{"ban", "an", true},
        Case{"baa", "aa", true}, Case{"n", "an", false}, Case{"na", "an", false}, Case{"a", "an", false, "n"},
        Case{"", "an", true, "an"}, Case{"Übung", "ü", true}, Case{"ö¼", "ü", false}}) {
    ArchivedItem entry;
    entry.id = Uuid::random();
    entry.text = text;
    entry.notes.emplace_back(note);
    FoldedEntries entries;
    entries.add(entry);
    std::vector<Uuid> matches;
    entries.find(folded(query), matches);
    EXPECT_EQ(matches, found ? std::vector{entry.id} : std::vector<Uuid>()) << text << " for " << query;
  }
}

}  // namespace
}  // namespace brimle
