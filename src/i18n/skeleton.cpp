#include "i18n/skeleton.h"

#include <unicode/dtptngen.h>

#include <memory>

namespace brimle {

icu::UnicodeString bestPattern(const icu::Locale& locale, std::string_view skeleton) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::DateTimePatternGenerator> generator(
      icu::DateTimePatternGenerator::createInstance(locale, status));
  if (U_FAILURE(status)) return {};
  const auto asked = icu::UnicodeString::fromUTF8({skeleton.data(), static_cast<int32_t>(skeleton.size())});
  const icu::UnicodeString pattern = generator->getBestPattern(asked, status);
  return U_SUCCESS(status) ? pattern : icu::UnicodeString();
}

}  // namespace brimle
