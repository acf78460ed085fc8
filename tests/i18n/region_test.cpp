// The order of a date and the weekend in the regions.
#include "i18n/region.h"

#include <gtest/gtest.h>
#include <unicode/uloc.h>

#include <string>

namespace brimle {
namespace {

using namespace std::chrono_literals;

/// "month" or "day", whichever stands first in a date, and the days of the weekend.
std::string shown(const Region& region) {
  constexpr std::array days{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  std::string text = region.monthFirst ? "month" : "day";
  for (unsigned day = 0; day < days.size(); ++day) {
    if (region.isWeekend(2026y / 6 / (14 + day))) text += std::string(" ") + days[day];
  }
  return text;
}

TEST(RegionOfALocale, TellsFieldOrderAndWeekend) {
  const std::pair<const char*, std::vector<const char*>> table[] = {
      {"month Sun Sat",
       {"en_US", "en_US.UTF-8", "en-US", "ja_JP.UTF-8", "zh-Hant-TW", "hu_HU.UTF-8", "tl_PH.UTF-8"}},
      {"day Sun Sat", {"en_GB.UTF-8", "de_DE", "de_DE.ISO-8859-15@euro", "de_DE@euro"}},
      {"day Fri Sat",
       {"ar_EG.UTF-8", "he_IL.UTF-8", "xx_IL"}},  // the country counts where all else is unknown
      {"month Fri", {"fa_IR"}},
      {"day Sun", {"hi_IN"}},
  };
  for (const auto& [expected, names] : table) {
    for (const char* name : names) EXPECT_EQ(shown(regionOf(name)), expected) << name;
  }
}

TEST(RegionOfALocale, IsDayFirstWithSaturdayAndSundayWhereTheNameSaysNothing) {
  for (const char* name :
       {"C", "C.UTF-8", "POSIX", "", "@euro", ".UTF-8", "xx_YY", "klingon", "en_US;DROP", "_", "\xff"}) {
    EXPECT_EQ(regionOf(name), Region()) << name;
  }
  EXPECT_EQ(regionOf(std::string(5000, 'a')), Region());
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

}  // namespace
}  // namespace brimle
