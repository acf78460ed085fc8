// What is read from a day file, and what is written into it.
#include "model/day_file.h"

#include <gtest/gtest.h>

#include "model/notation.h"

namespace brimle {
namespace {

const std::string kId = R"("1B4E28BA-2FA1-41D2-883F-0016D3CCA427")";

/// `text` with every ID as the identity above, and every other `what` as `with`.
std::string filled(std::string text, std::string_view what = "ID", std::string_view with = kId) {
  for (auto at = text.find(what); at != text.npos; at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
  return what == "ID" ? text : filled(text);
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
  const auto read = readDayFile(filled(filled(expected, "B4E28BA", "b4e28ba"), ":", "\r\n:\t "));
  EXPECT_TRUE(read && read->lists == lists && read->date == "2026-06-15");
}

TEST(DayFile, ReadsOlderAndForeignKeysAndEveryWayToWriteAText) {
  const std::pair<const char*, std::string> table[] = {
      {R"("pinned":true)", "t'*"},
      {R"("pinned":true,"repeats":false)", "t'"},
      {R"("repeats":null,"pinned":true)", "t'*"},
      {R"("pinned":7,"repeats":true)", "t'*"},
      {R"("pinned":7)", "unreadable"},
      {R"("note":" milk ")", "t'/ milk "},
      {R"("note":"")", "t'"},
      {R"("note":null,"notes":null)", "t'"},
      {R"("note":"milk","notes":["a","b"])", "t'/a/b"},
      {R"("notes":[],"note":["milk"])", "t'"},
      {R"("note":["milk"])", "unreadable"},
      {R"("colour":{"notes":[1,{"done":2}]},"":0)", "t'"},
      {R"("note":"\u0041\u00e9\/\b\f\n\r\t\"\\")", "t'/Aé/\b\f\n\r\t\"\\"},
      {R"("note":"\uD83D\uDE00\u0000")", std::string("t'/😀\0", 8)},
      {R"("note":"\uD83D")", "unreadable"},
      {R"("x":"\x41")", "unreadable"},
      {"\"x\":\"tab\there\"", "unreadable"},
      {"\"x\":\"\xED\xA0\x80\"", "unreadable"},
      {"\"x\":\"\xC0\x80\"", "unreadable"},
  };
  for (const auto& [keys, expected] : table) {
    EXPECT_EQ(firstTask(filled(R"({"date":"d","items":[{"text":"t",<keys>,"id":ID}]})", "<keys>", keys)),
              expected);
  }
  const auto archive = readDayFile(filled(
      R"({"items":[],"date":"","archive":[{"date":"14","items":[{"id":ID,"text":"t","note":"n"}]}]})"));
  EXPECT_EQ(archive ? shown(archive->lists) : "", " |  |  | 14:t/n");
}

TEST(DayFile, TakesTheLastOfWhatStandsThereTwice) {
  const auto file = readDayFile(filled(
      R"({"date":"e","date":"d","items":[{"id":ID,"text":"a"}],"items":[{"id":ID,"text":"b","text":"c"}],)"
      R"("scheduled":[{"id":ID,"date":"20","item":{"id":ID,"text":"x","done":true,"notes":["n"]},)"
      R"("item":{"id":ID,"text":"y","note":"m"}}]})"));
  EXPECT_EQ(file ? shown(file->lists) : "", "c' |  | 20:y'/m");
  EXPECT_EQ(file ? file->date : "", "d");
}

// Each <type> in turn stands for a value of every type; <type?> may be null or absent too.
TEST(DayFile, TakesOnlyTheRightTypeOfEveryKey) {
  const std::string documents[] = {
      R"({"version":<integer?>,"date":<text>,"items":<list>,"archive":<list?>,"tomorrow":<list?>,)"
      R"("scheduled":<list?>})",
      R"({"date":"d","items":[{"id":<id>,"text":<text>,"done":<boolean?>,"repeats":<boolean?>,)"
      R"("pinnedTop":<boolean?>,"schedule":<rule?>,"highlighted":<boolean?>,"notes":<strings?>,)"
      R"("clearedToday":<boolean?>}],"archive":[{"date":<text>,"items":<list>},{"date":"d","items":[)"
      R"({"id":<id>,"text":<text>,"completed":<boolean?>,"notes":<strings?>}]}],)"
      R"("scheduled":[{"id":<id>,"date":<text>,"item":<task>}]})"};
  // Values, each with the types it has.
  const auto values =
      split(filled(R"(null true<boolean -7<integer 1e2<integer 1.5 9223372036854775808 "x"<text )"
                   R"("weekdays"<text<rule ID<text<id []<list<strings ["n"]<strings [null] [7] )"
                   R"({"id":ID,"text":"t"}<task {})"),
            ' ');
  const auto good = [&](std::string document) {
    for (const auto& value : values) {
      const auto types = split(value, '<');
      for (std::size_t type = 1; type < types.size(); ++type) {
        for (const auto* end : {">", "?>"}) document = filled(document, "<" + types[type] + end, types[0]);
      }
    }
    return document;
  };
  for (const auto& document : documents) {
    ASSERT_TRUE(readDayFile(good(document))) << good(document);
    for (auto at = document.find('<'); at != document.npos; at = document.find('<', at + 1)) {
      const std::string before = good(document.substr(0, at)),
                        rest = good(document.substr(document.find('>', at) + 1));
      const std::string type = document.substr(at, document.find_first_of("?>", at) - at);
      const bool optional = document[at + type.size()] == '?';
      for (const auto& value : values) {
        const bool fits = value == "null" ? optional : (value + '<').find(type + '<') != value.npos;
        EXPECT_EQ(readDayFile(before + split(value, '<')[0] + rest).has_value(), fits) << before + value;
      }
      const std::string otherKey = before.substr(0, before.size() - 2) + R"(_":7)" + rest;
      EXPECT_EQ(readDayFile(otherKey).has_value(), optional) << otherKey;
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
  const std::string good = document("a+*/n! | t | 20:s | 14:x+/é"), list = R"({"date":"d","items":[)";
  ASSERT_TRUE(readDayFile(good));
  for (std::size_t length = 0; length < good.size(); ++length) {
    ASSERT_FALSE(readDayFile(good.substr(0, length))) << length;
  }
  for (const std::string& text :
       {std::string("null"), "[" + good + "]", good + "x", good + good, good + '\0', list + "NaN]}",
        list + ",]}", std::string(200'000, '[') + std::string(200'000, ']'), list + std::string(200'000, '['),
        std::string(20'000'000, 'x'), std::string(20'000'000, '"')}) {
    EXPECT_FALSE(readDayFile(text)) << text.substr(0, 80);
  }
}

}  // namespace
}  // namespace brimle
