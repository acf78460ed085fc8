// What is read from a day file, and what is written into it.
#include "model/day_file.h"

#include <gtest/gtest.h>

#include <map>
#include <regex>

#include "model/notation.h"

namespace brimle {
namespace {

const std::string kId = R"("1B4E28BA-2FA1-41D2-883F-0016D3CCA427")";

std::string with(const std::string& text, const char* what, const std::string& instead) {
  return std::regex_replace(text, std::regex(what), instead);
}

/// A document with the identity above for every ID.
std::string filled(const std::string& text) {
  return with(text, "ID", kId);
}

std::string firstTask(const std::string& bytes) {
  const auto file = readDayFile(bytes);
  return file ? shown(file->lists.items.at(0)) : "unreadable";
}

TEST(DayFile, WritesEveryKeyInItsOrder) {
  const Uuid id = *Uuid::parse(std::string_view(kId).substr(1, 36));
  Lists lists;
  lists.items = {{id, "a\"b", true, false, true, Schedule::weekdays, false, {"n", ""}, true}};
  lists.archive = Archive({{"2026-06-14", {{id, "b", true, {"m"}}, {id, "c", false, {}}}}, {"13", {}}});
  lists.scheduled = {{id, "2026-06-20", {id, "d", false, true, false, Schedule::everyDay, true, {}, false}}};
  const std::string expected = filled(
      R"({"version":1,"date":"2026-06-15","items":[{"id":ID,"text":"a\"b","done":true,"repeats":false,)"
      R"("pinnedTop":true,"schedule":"weekdays","highlighted":false,"notes":["n",""],"clearedToday":true}],)"
      R"("archive":[{"date":"2026-06-14","items":[{"id":ID,"text":"b","completed":true,"notes":["m"]},)"
      R"({"id":ID,"text":"c","completed":false,"notes":[]}]},{"date":"13","items":[]}],"tomorrow":[],)"
      R"("scheduled":[{"id":ID,"date":"2026-06-20","item":{"id":ID,"text":"d","done":false,"repeats":true,)"
      R"("pinnedTop":false,"schedule":"everyDay","highlighted":true,"notes":[],"clearedToday":false}}]})");
  EXPECT_EQ(document(lists), expected);
  const auto read = readDayFile(with(with(expected, "B4E28BA", "b4e28ba"), ":", "\r\n:\t "));
  EXPECT_TRUE(read && read->lists == lists && read->date == "2026-06-15");
}

TEST(DayFile, ReadsOlderAndForeignKeysAndEveryWayToWriteAText) {
  const std::pair<const char*, std::string> table[] = {
      {R"("pinned":true)", "t'*"},
      {R"("pinned":7,"repeats":true)", "t'*"},
      {R"("pinned":7)", "unreadable"},
      {R"("note":" milk ")", "t'/ milk "},
      {R"("note":"")", "t'"},
      {R"("note":"milk","notes":["a","b"])", "t'/a/b"},
      {R"("notes":[],"note":["milk"])", "t'"},
      {R"("note":["milk"])", "unreadable"},
      {R"("colour":{"notes":[1,{"done":2}]},"":0,"text":"last")", "last'"},
      {R"("note":"\u0041\u00e9\/\b\f\n\r\t\"\\")", "t'/Aé/\b\f\n\r\t\"\\"},
      {R"("note":"\uD83D\uDE00\u0000")", std::string("t'/😀\0", 8)},
      {"\"x\":\"\xED\xA0\x80\"", "unreadable"},
  };
  for (const auto& [keys, expected] : table) {
    EXPECT_EQ(
        firstTask(filled(R"({"date":"d","items":[{"text":"t",)" + std::string(keys) + R"(,"id":ID}]})")),
        expected);
  }
  const auto file = readDayFile(filled(
      R"({"items":[],"date":"","archive":[{"date":"14","items":[{"id":ID,"text":"t","note":"n"}]}],"scheduled":)"
      R"([{"id":ID,"date":"20","item":{"id":ID,"text":"x","notes":["n"]},"item":{"id":ID,"text":"y"}}]})"));
  EXPECT_EQ(file ? shown(file->lists) : "", " |  | 20:y' | 14:t/n");
}

TEST(DayFile, NeedsSomeKeysAndTakesOnlyTheRightTypeOfEvery) {
  const std::string values =
      R"(null true -7 1e2 1.5 9223372036854775808 "x" "weekdays" ID [] ["n"] [null] [7] {} {"id":ID,"text":"t"})";
  const std::map<std::string, std::string> types = {
      {"integer", "-7 1e2"},     {"text", R"("x" "weekdays" ID)"},
      {"rule", R"("weekdays")"}, {"id", "ID"},
      {"flag", "true"},          {"list", "[]"},
      {"notes", R"([] ["n"])"},  {"task", R"({"id":ID,"text":"t"})"}};
  // A document with the keys that a record needs, and all keys of the record with their types.
  const std::pair<std::string, const char*> table[] = {
      {R"({"date":"d","items":[]<>})",
       "version:integer date:text items:list archive:list tomorrow:list scheduled:list"},
      {R"({"date":"d","items":[{"id":ID,"text":"t"<>}]})",
       "id:id text:text done:flag repeats:flag pinnedTop:flag schedule:rule highlighted:flag notes:notes "
       "clearedToday:flag"},
      {R"({"date":"d","items":[],"archive":[{"date":"d","items":[]<>}]})", "date:text items:list"},
      {R"({"date":"d","items":[],"archive":[{"date":"d","items":[{"id":ID,"text":"t"<>}]}]})",
       "id:id text:text completed:flag notes:notes"},
      {R"({"date":"d","items":[],"scheduled":[{"id":ID,"date":"d","item":{"id":ID,"text":"t"}<>}]})",
       "id:id date:text item:task"},
  };
  for (const auto& [document, keys] : table) {
    for (auto at = document.find("\":"); at != document.npos; at = document.find("\":", at + 1)) {
      const std::string other = filled(with(std::string(document).insert(at, "_"), "<>", ""));
      const std::string_view key = std::string_view(document).substr(0, at);
      EXPECT_EQ(readDayFile(other).has_value(), key.ends_with("archive") || key.ends_with("scheduled"))
          << other;
    }
    for (const auto& key : split(keys, ' ')) {
      const auto parts = split(key, ':');
      for (const auto& value : split(values, ' ')) {
        const std::string given = filled(with(document, "<>", ",\"" + parts[0] + "\":" + value));
        const bool fits = std::ranges::count(split(types.at(parts[1]) + " null", ' '), value) > 0;
        EXPECT_EQ(readDayFile(given).has_value(), fits) << given;
      }
    }
  }
}

TEST(DayFile, GivesBackAnyTextAsItWas) {
  Lists lists;
  for (const std::string text : {"", "\u2028e\u0301 \uFFFF 👩‍👩‍👧"})
    lists.items.push_back(makeTask(text));
  lists.items.push_back(makeTask(std::string(1'000'000, '\0') + "é"));
  for (int byte = 0; byte < 127 * 20; ++byte) {
    lists.items.push_back(makeTask(std::string(20, 'x')));
    lists.items.back().text[byte % 20] = static_cast<char>(byte / 20);
  }
  const auto read = readDayFile(document(lists)).value_or(DayFile()).lists.items;
  EXPECT_TRUE(std::ranges::equal(read, lists.items, {}, &TodoItem::text, &TodoItem::text));
  lists.items = {makeTask("repaired \xFF and \"\xE2\x82\"")};
  EXPECT_EQ(firstTask(document(lists)), "repaired \uFFFD and \"\uFFFD\"'");
}

TEST(DayFile, RefusesWhatIsNoWholeDocument) {
  const std::string good = document("a+*/n! | t | 20:s | 14:x+/é");
  ASSERT_TRUE(readDayFile(good));
  for (const std::string& text :
       {std::string("null"), "[" + good + "]", good + "x", good + '\0', good.substr(0, good.size() - 1),
        std::string(200'000, '[') + std::string(200'000, ']'),
        R"({"date":"d","items":)" + std::string(200'000, '['), std::string(20'000'000, '"')}) {
    EXPECT_FALSE(readDayFile(text)) << text.substr(0, 80);
  }
}

}  // namespace
}  // namespace brimle
