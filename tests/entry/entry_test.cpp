// How typed and pasted lines are read as tasks.
#include "entry/entry.h"

#include <gtest/gtest.h>

namespace brimle {
namespace {

using namespace std::chrono_literals;

const EntryContext kJune{2026y / 6 / 15, {}, "en_GB"};

/// One line an entry: "text [pinned] [daily] [2026-09-12] | note | note", with what applies.
std::string read(std::string_view text) {
  std::string shown;
  for (const auto& [task, sendDate] : parseLines(text, kJune)) {
    shown += (shown.empty() ? "" : "\n") + task.text + (task.pinnedTop ? " [pinned]" : "");
    if (task.repeats) shown += task.schedule == Schedule::weekdays ? " [weekdays]" : " [daily]";
    if (sendDate) shown += " [" + *sendDate + "]";
    for (const auto& note : task.notes) shown += " | " + note;
  }
  return shown;
}

struct Row {
  std::string shown;
  std::vector<std::string> texts;
};

void expectEach(const std::vector<Row>& rows) {
  for (const auto& [shown, texts] : rows) {
    for (const auto& text : texts) EXPECT_EQ(read(text), shown) << text;
  }
}

TEST(Entry, SplitsNotesOffATask) {
  expectEach({{"milk", {"milk //", "milk // //"}},
              {"a | b | c", {"a // b // c", "a //b //\u00A0 // c "}},
              {"a | /b ! | c >20/6", {"a ///b ! // c >20/6"}},
              {"x | 1 | 2 | 3 | 4 | 5 | 6 | 7 | 8 | 9 | 10",
               {"x // 1 // // 2 // 3 // 4 // 5 // 6 // 7 // 8 // 9 // 10 // 11 // 12"}}});
}

TEST(Entry, ReadsMarkersAtTheEnd) {
  expectEach({{"x", {"x /", "x \t /"}},
              {"x /", {"x / /"}},
              {"x [pinned]", {"x !", "x ! ! !", "x ! /"}},
              {"x [daily]", {"x *", "x * *"}},
              {"x [weekdays]", {"x *w", "x * *w", "x *w\u2003 *"}},
              {"x [pinned] [daily]", {"x * !", "x ! *"}},
              {"*w [pinned] [weekdays]", {"*w ! *w"}}});
}

TEST(Entry, SendsATaskToADayPinned) {
  expectEach({{"x [pinned] [2026-09-12]", {"x >12/9", "x ! > 12 sep ", "x >12/9 /"}},
              {"x [pinned] [daily] [2026-09-12] | n", {"x * >12/9 // n"}},
              {"x >12/9 [pinned]", {"x >12/9 !"}}});
}

TEST(Entry, KeepsWhatIsNoMarkerAsText) {
  for (const auto* text :
       {"x!", "x *W", "x\u00A0!", "!", "*", "milk//eggs", "// eggs", ">12/9", "x >1/1/26"}) {
    EXPECT_EQ(read(text), text);
    EXPECT_EQ(read(std::string("  ") + text), text);
  }
}

TEST(Entry, IsANewTaskOrNothingForABlankLine) {
  EXPECT_NE(parseEntry("a", kJune)->item.id, parseEntry("a", kJune)->item.id);
  EXPECT_EQ(parseEntry("\n a \r\n", kJune)->item.text, "a");
  for (const auto* blank : {"", "\t\u00A0\u3000", "\r\n \u2028"}) EXPECT_FALSE(parseEntry(blank, kJune));
}

TEST(Lines, BecomeTasksAndNotes) {
  expectEach({{"milk | whole, not skimmed\nbank", {"milk\n\twhole, not skimmed\nbank"}},
              {"a | b", {"\ta\n b", "a\r\n b\r\n\r\n", " a\u2028\t b\u0085"}},
              {"a\nb\nc\nd", {"a\n\u00A0b\n\u3000c\vd", "\na\rb\fc\u2029d"}},
              {"a | typed | taken ! // as >20/6 is *", {"a // typed\n taken ! // as >20/6 is *"}},
              {{"a\0 [pinned] | \xE2\x82", 16}, {{"a\0 !\n \xE2\x82", 8}}},
              {"", {"", " \n\t\r\n\u00A0"}}});
}

TEST(Lines, LoseOneBullet) {
  for (const std::string bullet : {"-", "*", "•", "○", "✓", "[ ]", "[x]"}) {
    EXPECT_EQ(read(bullet + " a\n\t" + bullet + "  b"), "a |  b");
    EXPECT_EQ(read(bullet + "a"), bullet + "a");
  }
  expectEach({{"[X] a", {"[X] a"}}, {"[ ] a", {"- [ ] a"}}, {"-", {" - "}}, {"a [pinned]", {"-   a !"}}});
}

TEST(Lines, KeepTenNotesATask) {
  std::string text = "a // typed";
  for (int line = 0; line < 12; ++line) text += "\n " + std::to_string(line);
  EXPECT_EQ(read(text + "\nb\n c"), "a | typed | 0 | 1 | 2 | 3 | 4 | 5 | 6 | 7 | 8\nb | c");
}

}  // namespace
}  // namespace brimle
