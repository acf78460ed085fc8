// How a typed text is coloured, with brackets around what is: [s secondary, [n secondary and italic, [r red.
#include "views/composer_runs.h"

#include <gtest/gtest.h>

namespace brimle {
namespace {

using namespace std::chrono_literals;
using Text = std::u16string;

const EntryContext kJune{2026y / 6 / 15, {}, "en_GB"};

Text withoutBrackets(Text text) {
  for (std::size_t at; (at = text.find(u'[')) != text.npos;) text.erase(at, 2);
  std::erase(text, u']');
  return text;
}

Text withBrackets(const Text& text, const EntryContext& context) {
  Text looks(text.size() + 1, 0);
  for (const auto& [start, length, ink, italic] : composerRuns(text, context)) {
    EXPECT_TRUE(length > 0 && start < text.size() && length <= text.size() - start);
    looks.replace(start, length, length, italic ? u'n' : ink == TextRun::Ink::pencilRed ? u'r' : u's');
  }
  Text out;
  for (std::size_t at = 0; at < looks.size(); ++at) {
    const char16_t before = at == 0 ? 0 : looks[at - 1], now = looks[at];
    if (before != 0 && before != now) out += u']';
    if (now != 0 && before != now) out += {u'[', now};
    if (at < text.size()) out += text[at];
  }
  return out;
}

void expectEach(const std::vector<Text>& rows, const EntryContext& context = kJune) {
  for (const Text& row : rows) EXPECT_EQ(withBrackets(withoutBrackets(row), context), row);
}

const std::vector<std::vector<Text>> kLines = {
    {u"call bank [r!] [s*w]", u"call ! bank", u"a [r!]  [s*w] [s*] ", u"!", u"* [r!]", u"a !! [s*]", u"a !*",
     u"a *W", u"a\t!", u""},
    {u"[n\teggs ! >1/7]", u"[n ]", u"\u00A0eggs", u"a[n //b //c]", u"a//b", u"a [r!][n // n]", u"a !// n",
     u"eggs [r!] [s*][n /]", u"eggs/", u"/"},
    {u"pay [s*w >1/7]", u"a [r!][s > 1/7 ]", u"a >fri", u">1/7", u"a>1/7", u"a >1/7[s >2/7]", u"a >1/7 [r!]",
     u"a[s >1/7][n // >2/7]", u"pay rent *[s >1/7][n // landlord]", u"a[s >3/7/x ][r!][n // n]"},
    {u"\U0001F600é [r!][n // \U0001F600]", u"\xD83D ! \xDE00 [s*]"}};

TEST(ComposerRuns, ColourMarkersNotesAndDatesOfEachLineForItself) {
  for (const auto& lines : kLines) expectEach(lines);
  for (const Text lineBreak : {u"\n", u"\r\n", u"\r", u"\u0085", u"\u2028", u"\u2029", u"\n\n"}) {
    Text all;
    for (const auto& lines : kLines) {
      for (const Text& line : lines) all += line + lineBreak;
    }
    expectEach({all});
  }
}

TEST(ComposerRuns, ReadDatesByTheLanguageTheRegionAndTheDay) {
  expectEach({u"a >3 marzo", u"a >7/6/26", u"a >15/6/26", u"a[s >16/6/26]"});
  expectEach({u"a[s >3 marzo]", u"a[s >3 march]"}, {kJune.today, {}, "es"});
  expectEach({u"a[s >7/6/26]"}, {kJune.today, {true, {}}, "en_GB"});
  expectEach({u"a[s >15/6/26]"}, {2026y / 6 / 14, {}, "en_GB"});
}

}  // namespace
}  // namespace brimle
