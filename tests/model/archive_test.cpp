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
  for (; count > 0; --count) days.push_back(archiveDay(std::to_string(1000 + count) + ":old+/note"));
  return days;
}

std::vector<std::string_view> piecesOf(const Archive& archive) {
  std::vector<std::string_view> pieces;
  archive.appendEncoded(pieces);
  return pieces;
}

TEST(Archive, AgreesWithAPlainListAfterAnyAdditions) {
  std::mt19937 random(1);
  for (const int size : {0, 1, 31, 32, 33, 64, 70}) {
    std::vector<ArchiveDay> plain = days(size);
    Archive archive(plain);
    for (int step = 0; step < 80; ++step) {
      if (plain.empty() || random() % 2)
        plain.insert(plain.begin(), ArchiveDay{std::to_string(2000 + step), {}});
      const std::vector<ArchivedItem> entries(1 + random() % 3, archivedCopy(task("new\"\xFF"), step % 2));
      plain.front().items.insert(plain.front().items.end(), entries.begin(), entries.end());
      archive = archive.withEntries(plain.front().date, entries);

      std::string expected, encoded;
      json::appendElements(expected, plain);
      for (const auto piece : piecesOf(archive)) encoded += piece;
      ASSERT_EQ(encoded, expected) << size << " days, step " << step;
      ASSERT_TRUE(archive == Archive(plain) && std::ranges::equal(archive, plain));
      ASSERT_EQ(archive.dayCount(), plain.size());
      ASSERT_EQ(piecesOf(archive).size(), (plain.size() + 31) / 32) << "in blocks of 32 days";
    }
  }
}

TEST(Archive, SharesWhatDidNotChange) {
  for (const int size : {31, 32, 33, 100}) {
    const std::vector<ArchiveDay> plain = days(size);
    const Archive before(plain);
    for (const std::string& date : {plain.front().date, std::string("2000")}) {
      const Archive after = before.withEntries(date, archiveDay("14:x").items);
      EXPECT_EQ(before, Archive(plain)) << "the former value is untouched";
      auto old = before.begin(), now = after.begin();
      if (date != "2000") ++old;
      while (old != before.end()) ASSERT_EQ((old++).node(), (++now).node()) << size << " " << date;
      EXPECT_EQ(++now, after.end());
      EXPECT_EQ(piecesOf(before).back().data() == piecesOf(after).back().data(), size > 32);
    }
  }
}

}  // namespace
}  // namespace brimle
