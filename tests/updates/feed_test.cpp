// Which documents are update feeds, and which versions are newer.
#include "updates/feed.h"

#include <gtest/gtest.h>

namespace brimle {
namespace {

using namespace std::chrono_literals;

TEST(Feed, TellsOfAVersion) {
  const auto feed = parseFeed(
      R"({"version":"1.20.3","date":"2026-06-15","notes":" New:\n• été\n","address":"https://a.example:8443/b?c=d#e",)"
      R"("size":[1,{"version":"9.9.9"}]})");
  EXPECT_EQ(feed, (Feed{{{1, 20, 3}}, 2026y / 6 / 15, "New:\n• été", "https://a.example:8443/b?c=d#e"}));
}

std::string inQuotes(std::string_view text) {
  return '"' + std::string(text) + '"';
}

struct Row {
  const char* key;
  std::string value;  ///< in JSON; empty: the key is left out
};

/// A sound feed but for one value.
std::string feedWith(const Row& row) {
  std::string feed = "{";
  for (const Row& sound : {Row{"version", inQuotes("1.2.3")}, Row{"date", inQuotes("2026-06-15")},
                           Row{"notes", inQuotes("")}, Row{"address", inQuotes("https://a.example")}}) {
    const std::string& value = std::string_view(sound.key) == row.key ? row.value : sound.value;
    if (!value.empty()) feed += inQuotes(sound.key) + ":" + value + ",";
  }
  feed.back() = '}';
  return feed;
}

TEST(Feed, TakesValuesUpToTheirBounds) {
  const Row rows[] = {
      {"version", inQuotes("999999.999999.999999")},
      {"date", inQuotes("2028-02-29")},
      {"notes", inQuotes(std::string(8 * 1024, 'n'))},
      {"address", inQuotes("https://a/" + std::string(2048 - 10, 'p'))},
  };
  for (const Row& row : rows) EXPECT_TRUE(parseFeed(feedWith(row))) << row.key << ": " << row.value;
}

TEST(Feed, RefusesEveryOtherValue) {
  std::vector<Row> rows;
  for (const char* key : {"version", "date", "notes", "address"}) {
    for (const char* value : {"", "null", "1", "[]", "{}", "\"\\ud800\""}) rows.push_back({key, value});
  }
  for (const char* version : {"", "1.2", "1.2.3.4", "1..3", "1.2.3.", "01.2.3", "1.2.-3", "+1.2.3",
                              "1.2.3-rc1", " 1.2.3", "1.2.1000000", "v1.2.3"})
    rows.push_back({"version", inQuotes(version)});
  for (const char* date : {"", "2026-02-29", "2026-6-15", "2026-06-15T00:00"})
    rows.push_back({"date", inQuotes(date)});
  for (const char* address : {"", "https://", "https:///path", "http://a.example", "a.example",
                              "file:///etc/passwd", "https://a@b.example", "https://:443/", "https://a b",
                              "https://a.example/\\n", "https://a\\\\b", "https://é.example"})
    rows.push_back({"address", inQuotes(address)});
  rows.push_back({"notes", inQuotes(std::string(8 * 1024 + 1, 'n'))});
  rows.push_back({"address", inQuotes("https://a/" + std::string(2048 - 9, 'p'))});
  for (const Row& row : rows) EXPECT_FALSE(parseFeed(feedWith(row))) << row.key << ": " << row.value;
}

TEST(Feed, RefusesDocumentsOfAnotherForm) {
  const std::string sound = feedWith({"", ""});
  ASSERT_TRUE(parseFeed(sound));
  const std::string inside = sound.substr(0, sound.size() - 1);
  const std::string documents[] = {
      "",
      "null",
      "[" + sound + "]",
      sound + sound,
      inside,
      inside + R"(,"version":"1.2.3"})",
      inside + R"(,"versi\u006fn":"9.0.0"})",
      inside + ",}",
      inside + ",\"notes2\":\"\xff\"}",
      sound + std::string(kLongestFeed, ' '),
      std::string(kLongestFeed, '['),
  };
  for (const std::string& document : documents) EXPECT_FALSE(parseFeed(document)) << document.substr(0, 200);
  EXPECT_TRUE(parseFeed(sound + std::string(kLongestFeed - sound.size(), ' ')));
}

TEST(Version, ComparesByNumberFromTheLeft) {
  const char* ascending[] = {"0.0.9", "0.0.10", "0.9.0", "0.10.0", "2.0.0", "10.0.0"};
  for (std::size_t i = 1; i < std::size(ascending); ++i)
    EXPECT_LT(Version::parse(ascending[i - 1]), Version::parse(ascending[i])) << ascending[i];
}

}  // namespace
}  // namespace brimle
