// The archive as a value: what changes make of it and what they share.
#include "model/archive.h"

#include <gtest/gtest.h>

#include <random>

#include "model/json_writer.h"
#include "model/notation.h"

namespace brimle {
namespace {

/// That many days, newest first.
std::vector<ArchiveDay> days(int count) {
  std::vector<ArchiveDay> days;
  for (; count > 0; --count) days.push_back(archiveDay(std::to_string(1000 + count) + ":old+/note,older"));
  return days;
}

std::vector<std::string_view> piecesOf(const Archive& archive) {
  std::vector<std::string_view> pieces;
  archive.appendEncoded(pieces);
  return pieces;
}

void expectSame(const Archive& archive, const std::vector<ArchiveDay>& plain) {
  std::string expected, encoded;
  json::appendElements(expected, plain);
  for (const auto piece : piecesOf(archive)) encoded += piece;
  ASSERT_EQ(encoded, expected);
  ASSERT_TRUE(archive == Archive(plain) && std::ranges::equal(archive, plain));
  ASSERT_EQ(archive.dayCount(), plain.size());
  std::vector<Uuid> ids;
  for (const ArchiveDay& day : plain) {
    for (const ArchivedItem& entry : day.items) ids.push_back(entry.id);
  }
  ASSERT_EQ(archive.matchingIDs(""), ids);
}

TEST(Archive, AgreesWithAPlainListAfterAnyChanges) {
  std::mt19937 random(1);
  for (const int size : {0, 1, 31, 32, 33, 64, 100}) {
    std::vector<ArchiveDay> plain = days(size);
    plain.push_back({"empty", {}});
    Archive archive(plain);
    for (int step = 0; step < 120; ++step) {
      if (plain.empty() || random() % 2)
        plain.insert(plain.begin(), ArchiveDay{std::to_string(2000 + step), {}});
      const std::vector<ArchivedItem> entries(1 + random() % 3, archivedCopy(task("new\"\xFF"), step % 2));
      plain.front().items.insert(plain.front().items.end(), entries.begin(), entries.end());
      archive = archive.withEntries(plain.front().date, entries);
      expectSame(archive, plain);
      if (step < 80) {
        ASSERT_EQ(piecesOf(archive).size(), (plain.size() + 31) / 32) << "in blocks of 32 days";
        continue;
      }
      std::unordered_set<Uuid> ids{idOf("none")};
      std::vector<ArchivedItem> expected, removed;
      for (ArchiveDay& day : plain) {
        if (random() % 16 == 0) ids.insert(day.items.back().id);
        std::ranges::copy_if(day.items, std::back_inserter(expected),
                             [&](const auto& entry) { return ids.contains(entry.id); });
        std::erase_if(day.items, [&](const auto& entry) { return ids.contains(entry.id); });
      }
      std::erase_if(plain, [](const ArchiveDay& day) { return day.items.empty(); });
      archive = archive.without(ids, removed);
      ASSERT_EQ(removed, expected);
      expectSame(archive, plain);
    }
  }
}

TEST(Archive, SharesWhatDidNotChange) {
  for (const int size : {31, 32, 33, 100}) {
    const std::vector<ArchiveDay> plain = days(size);
    const Archive before(plain);
    EXPECT_NE(Archive(std::vector(plain.begin(), plain.end() - 1)), before);
    std::vector<ArchivedItem> removed;
    for (const Archive& after : {before.withEntries("2000", archiveDay("14:x").items),
                                 before.withEntries(plain.front().date, archiveDay("14:x").items),
                                 before.without({plain.front().items.front().id}, removed)}) {
      EXPECT_EQ(before, Archive(plain)) << "the former value is untouched";
      auto old = before.begin(), now = after.begin();
      if (now->date != "2000") ++old;
      while (old != before.end()) ASSERT_EQ((old++).node(), (++now).node()) << size;
      EXPECT_EQ(++now, after.end());
      EXPECT_EQ(piecesOf(before).back().data() == piecesOf(after).back().data(), size > 32);
    }
  }
}

}  // namespace
}  // namespace brimle
