// The order of a date and the weekend in the regions.
#include "i18n/region.h"

#include <gtest/gtest.h>
#include <unicode/uloc.h>

#include <string>

namespace brimle {
namespace {

using namespace std::chrono_literals;

constexpr std::bitset<7> kSunday = 0b0000001, kSaturdaySunday = 0b1000001, kFridaySaturday = 0b1100000,
                         kFriday = 0b0100000;

TEST(RegionOfALocale, TellsFieldOrderAndWeekend) {
  const struct {
    const char* name;
    bool monthFirst;
    std::bitset<7> weekend;
  } cases[] = {
      {"en_US", true, kSaturdaySunday},
      {"en_US.UTF-8", true, kSaturdaySunday},
      {"en-US", true, kSaturdaySunday},
      {"en_GB.UTF-8", false, kSaturdaySunday},
      {"de_DE", false, kSaturdaySunday},
      {"de_DE.ISO-8859-15@euro", false, kSaturdaySunday},
      {"de_DE@euro", false, kSaturdaySunday},
      {"ja_JP.UTF-8", true, kSaturdaySunday},
      {"zh-Hant-TW", true, kSaturdaySunday},
      {"hu_HU.UTF-8", true, kSaturdaySunday},
      {"tl_PH.UTF-8", true, kSaturdaySunday},  // an old name of Filipino
      {"ar_EG.UTF-8", false, kFridaySaturday},
      {"he_IL.UTF-8", false, kFridaySaturday},
      {"fa_IR", true, kFriday},
      {"hi_IN", false, kSunday},
  };
  for (const auto& [name, monthFirst, weekend] : cases) {
    EXPECT_EQ(regionOf(name), (Region{monthFirst, weekend})) << name;
  }
}

TEST(RegionOfALocale, IsDayFirstWithSaturdayAndSundayWhereTheNameSaysNothing) {
  for (const char* name :
       {"C", "C.UTF-8", "POSIX", "", "@euro", ".UTF-8", "xx_YY", "klingon", "en_US;DROP", "_", "\xff"}) {
    EXPECT_EQ(regionOf(name), Region()) << name;
  }
  EXPECT_EQ(regionOf(std::string(5000, 'a')), Region());
}

TEST(RegionOfALocale, KnowsTheWeekendOfACountryWhoseLanguageIsUnknown) {
  EXPECT_EQ(regionOf("xx_IL"), (Region{false, kFridaySaturday}));
}

TEST(RegionOfALocale, DoesNotDependOnTheLocaleOfTheProcess) {
  const std::string before = uloc_getDefault();
  for (const char* own : {"en_US", "ar_EG"}) {
    UErrorCode status = U_ZERO_ERROR;
    uloc_setDefault(own, &status);
    for (const char* name : {"C", "", "xx_YY", "klingon"}) EXPECT_EQ(regionOf(name), Region()) << own << name;
    EXPECT_EQ(regionOf("de_DE"), Region()) << own;
  }
  UErrorCode status = U_ZERO_ERROR;
  uloc_setDefault(before.c_str(), &status);
}

TEST(Weekend, IsTheRegionsOwn) {
  const Day friday = 2026y / 6 / 12, saturday = 2026y / 6 / 13, sunday = 2026y / 6 / 14,
            monday = 2026y / 6 / 15;
  const struct {
    const char* name;
    bool expected[4];
  } cases[] = {
      {"C", {false, true, true, false}},
      {"de_DE", {false, true, true, false}},
      {"ar_EG", {true, true, false, false}},
      {"hi_IN", {false, false, true, false}},
  };
  for (const auto& [name, expected] : cases) {
    const Region region = regionOf(name);
    EXPECT_EQ(region.isWeekend(friday), expected[0]) << name;
    EXPECT_EQ(region.isWeekend(saturday), expected[1]) << name;
    EXPECT_EQ(region.isWeekend(sunday), expected[2]) << name;
    EXPECT_EQ(region.isWeekend(monday), expected[3]) << name;
  }
}

}  // namespace
}  // namespace brimle
