#include "entry/month_names.h"

#include <unicode/dtfmtsym.h>
#include <unicode/locid.h>

#include <cstdint>
#include <functional>
#include <map>

#include "base/text.h"

namespace brimle {
namespace {

using Symbols = icu::DateFormatSymbols;

/// Far more than any month's name takes; what is longer is not worth folding.
constexpr std::size_t kMostNameBytes = 256;

struct Form {
  Symbols::DtContextType context;
  Symbols::DtWidthType width;
};

/// Full names first: where two forms share a name, the full one decides.
constexpr Form kForms[] = {
    {Symbols::FORMAT, Symbols::WIDE},
    {Symbols::STANDALONE, Symbols::WIDE},
    {Symbols::FORMAT, Symbols::ABBREVIATED},
    {Symbols::STANDALONE, Symbols::ABBREVIATED},
};

MonthNames buildMonthNames(const std::string& locale) {
  MonthNames names;
  names.add(locale);
  if (locale == kBritishEnglish) names.add("en");
  return names;
}

}  // namespace

void MonthNames::add(const std::string& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const Symbols symbols(icu::Locale(locale.c_str()), status);
  if (U_FAILURE(status)) return;
  for (const auto& [context, width] : kForms) {
    std::int32_t count = 0;
    const icu::UnicodeString* months = symbols.getMonths(count, context, width);
    for (std::int32_t index = 0; index < count; ++index) {
      std::string utf8;
      std::string name = folded(months[index].toUTF8String(utf8));
      if (name.ends_with('.')) months_.emplace(name.substr(0, name.size() - 1), index + 1);
      months_.emplace(std::move(name), index + 1);
    }
  }
}

std::optional<int> MonthNames::find(std::string_view name) const {
  if (name.size() > kMostNameBytes) return std::nullopt;
  const auto found = months_.find(folded(name));
  if (found == months_.end()) return std::nullopt;
  return found->second;
}

const MonthNames& monthNames(std::string_view locale) {
  static std::map<std::string, MonthNames, std::less<>> kept;
  auto found = kept.find(locale);
  if (found == kept.end()) found = kept.emplace(locale, buildMonthNames(std::string(locale))).first;
  return found->second;
}

}  // namespace brimle
