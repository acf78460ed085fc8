// Text in UTF-8: its blanks, its lines, its repair, and when two texts mean the same.
#include "base/text.h"

#include <gmock/gmock.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <regex>

#include "model/notation.h"

namespace brimle {
namespace {

using testing::ElementsAre;

TEST(Text, KnowsEverySpaceAndNewlineOfUnicode) {
  for (UChar32 c = 0; c <= 0xFFFF; ++c) {
    if (U_IS_SURROGATE(c)) continue;
    const bool isSpace = c == '\t' || u_charType(c) == U_SPACE_SEPARATOR;
    const bool isNewline = (c >= 0x0A && c <= 0x0D) || c == 0x85 || c == 0x2028 || c == 0x2029;
    std::string text;
    icu::UnicodeString(c).append('x').append(c).toUTF8String(text);
    ASSERT_EQ(trimmed(text) == "x", isSpace) << c;
    ASSERT_EQ(trimmedLines(text) == "x", isSpace || isNewline) << c;
    ASSERT_EQ(containsNewline(text), isNewline) << c;
  }
}

TEST(Text, IsTrimmedAtBothEndsAndNoFurther) {
  for (const std::string kept :
       {"", "a \u00A0b", "\U0001F600", "\xA0", "\xC2", "a\xE3\x80", "\x80\x80\x80\x80"}) {
    EXPECT_EQ(trimmed("\t \u2003" + kept + "\u3000\u00A0"), kept);
    EXPECT_EQ(trimmedLines("\r\n " + kept + "\u2029 "), kept);
  }
}

TEST(Text, SplitsIntoLinesAtEveryNewline) {
  EXPECT_THAT(splitLines(""), ElementsAre(""));
  EXPECT_THAT(splitLines("\na\vb\fc\rd\u0085\xE2\x80 e\u2028f\u2029g\r\n"),
              ElementsAre("", "a", "b", "c", "d", "\xE2\x80 e", "f", "g", "", ""));
}

TEST(Text, BecomesValidWithOneMarkForEachIllFormedSequence) {
  const std::string valid("a\0\x7Fé\uFFFF\U0010FFFF", 12);
  for (const auto& [text, marked] : {std::pair<std::string, std::string>{valid, valid},
                                     {"a\x80z", "a?z"},
                                     {"\xE2\x82 \xF0\x9F\x98", "? ?"},   // cut short
                                     {"\xC0\xAF\xED\xA0\x80", "?????"},  // too long a form, a surrogate
                                     {"\xF4\x90\x80\x80\xFF", "?????"}}) {
    EXPECT_EQ(isValidUtf8(text), text == marked) << text;
    EXPECT_EQ(toValidUtf8(text), std::regex_replace(marked, std::regex("\\?"), "\uFFFD"));
  }
}

TEST(Text, IsComparedByWhatItMeansAndFoldedByItsLetters) {
  for (const auto& row :
       split("é=e\u0301 각=\u1100\u1161\u11A8 q\u0323\u0307=q\u0307\u0323 a~A é~e é~E\u0301 ﬁ~fi", ' ')) {
    const auto sign = row.find_first_of("=~");
    EXPECT_EQ(canonicallyEqual(row.substr(0, sign), row.substr(sign + 1)), row[sign] == '=') << row;
  }
  for (const auto& row :
       split("@AZ[`az{=@az[`az{ TAS\u212A=task Straße=strasse STRAẞE=strasse ΣΟΦος=σοφοσ ﬃ=ffi I=i ı=ı "
             "İ=i\u0307 E\u0301=é É=é Ι\u0308\u0301=ΐ J\u030C=ǰ",
             ' ')) {
    EXPECT_EQ(folded(row.substr(0, row.find('='))), row.substr(row.find('=') + 1));
  }
  for (const char* text : {"\u0301", "\u20DDa", "\u0E31"}) EXPECT_TRUE(startsWithMark(text)) << text;
  for (const char* text : {"", "a\u0301", "é", "\xCC"}) EXPECT_FALSE(startsWithMark(text)) << text;
}

}  // namespace
}  // namespace brimle
