// Which days the date at the end of a text may name.
#include "entry/date_token.h"

#include <gtest/gtest.h>

namespace brimle {
namespace {

using namespace std::chrono_literals;

const EntryContext kJune{2026y / 6 / 15, {}, "en_GB"};
const EntryContext kAmericanJune{2026y / 6 / 15, {true, {}}, "en_GB"};

EntryContext juneIn(std::string locale) {
  return {kJune.today, {}, std::move(locale)};
}

struct Row {
  std::string day;  ///< "none" where the tokens name no day
  std::vector<std::string> tokens;
};

void expectEach(const EntryContext& context, const std::vector<Row>& rows) {
  for (const auto& [expected, tokens] : rows) {
    for (const auto& token : tokens) {
      const auto day = parseDateToken(token, context);
      EXPECT_EQ(day ? dayKey(*day) : "none", expected) << token << " in " << context.locale;
    }
  }
}

TEST(DateToken, OfNumbersNamesTheNextSuchDay) {
  expectEach(kJune,
             {{"2026-06-16", {"16/6", "6/16", "2026-06-16", "2026-6-16"}},
              {"2027-06-15", {"15/6", "6-15", "15/6/27"}},
              {"2026-07-03", {"+3/7", "3.7.", "--3//7..", " \t3-7\u00A0", "0003/007", "3/7/x", "3/7/ 27"}},
              {"2026-07-03", {"3/7/9223372036854775808"}},  // no number, so no year
              {"2027-09-12", {"12/9/27", "12-9-27", "12.9.2027", "12/9/2027/5", "12/9/+27"}},
              {"9999-12-31", {"31/12/9999"}},
              {"none", {"", " ", "/", "12", "+3", "++3/7", "12 / 9", "9223372036854775808/1", "\u0661/9"}},
              {"none", {"31/4", "31/4/27", "29/2", "29/2/27", "13/13", "32/1", "0/5", "5/0", "5/0/27"}},
              {"none", {"1/1/26", "15/6/26", "1/1/0", "1/1/10000", "1/1/9223372036854775807"}},
              {"none", {"2026-06-14", "2026-06-15", "2026-02-30", "0012-09-27", "2026/06/16"}}});
}

TEST(DateToken, FollowsTheRegionOnlyWhereBothOrdersArePossible) {
  expectEach(kJune, {{"2026-09-12", {"12/9", "2026-09-12"}}, {"2026-06-20", {"6/20", "20/6"}}});
  expectEach(kAmericanJune,
             {{"2026-12-09", {"12/9"}}, {"2026-06-20", {"6/20", "20/6"}}, {"2027-09-12", {"9/12/27"}}});
}

TEST(DateToken, WithoutAYearLooksNoFurtherThanTheNext) {
  expectEach({2027y / 1 / 10, {}, "en_GB"}, {{"2028-02-29", {"29/2", "29 feb"}}});
  expectEach({2028y / 2 / 28, {}, "en_GB"}, {{"2028-02-29", {"29/2", "29 feb"}}});
  expectEach({2028y / 2 / 29, {}, "en_GB"}, {{"none", {"29/2", "29 feb"}}});
  expectEach({9999y / 12 / 31, {}, "en_GB"}, {{"none", {"1/1", "1 jan", "31 dec"}}});
}

TEST(DateToken, OfMonthNamesIsReadInTheInterfaceLanguageThenInBritishEnglish) {
  expectEach(
      kJune,
      {{"2027-03-12", {"12 March", "12 mar", "MARCH 12", "mar 12", "12 march 2027", "12  mar\t2027"}},
       {"2026-09-01", {"1\u3000sept", "sep 1"}},
       {"none", {"12march", "march12", "march 2027", "march 12 2027", "12 march 2026", "12 march 10000"}},
       {"none", {"fri", "tomorrow", "march", "12 m", "+12 march", "12 marchx", "12 3月", "3 marzo"}},
       {"none", {"31 april", "29 february", "29 february 2027", "45 march", "0 march", "\xC3 12"}},
       {"none", {"99999999999999999999 march", "12 " + std::string(1'000'000, 'm')}}});
  expectEach(juneIn("es_ES"), {{"2027-03-03", {"3 marzo", "3 march", "MAR 3", "3 marzo 2027"}}});
  expectEach(juneIn("de_DE"),
             {{"2027-03-03", {"3 MÄRZ", "3 ma\u0308r"}}, {"2026-10-01", {"1 okt.", "1 Okt"}}});
  expectEach(juneIn("ja_JP"),
             {{"2027-03-12", {"12 3月", "3月\u300012", "12 3月 2027"}}, {"none", {"3月12"}}});
  expectEach(juneIn("zh_CN"), {{"2026-12-01", {"十二月 1", "1 12月"}}, {"2027-02-01", {"1 二月"}}});
  expectEach(juneIn("vi_VN"), {{"2027-03-12", {"12 tháng 3", "THÁNG 3 12", "12 tháng 3 2027"}}});
  expectEach(juneIn("fr_FR"), {{"2027-02-01", {"1 févr.", "1 FÉVR"}}, {"2026-08-01", {"août 1"}}});
}

TEST(DateToken, StandsAfterTheLastSignAndSomeText) {
  for (const auto* text : {"a > b >20/6", "a > b\u00A0  > 20/6 ", "a > b >20 june"}) {
    const auto dated = extractDateToken(text, kJune);
    ASSERT_TRUE(dated) << text;
    EXPECT_EQ(dated->text, "a > b");
    EXPECT_EQ(dated->day, 2026y / 6 / 20);
  }
  for (const auto* text :
       {"", ">20/6", " >20/6", "\t >20/6", "a>20/6", "a >20/6 >", "a >20/6 >soon", "a >"}) {
    EXPECT_FALSE(extractDateToken(text, kJune)) << text;
  }
}

}  // namespace
}  // namespace brimle
