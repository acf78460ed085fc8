#include "views/date_hint.h"

#include "entry/date_token.h"
#include "i18n/dates.h"

namespace brimle {

std::string dateHint(std::string_view text, const EntryContext& context) {
  const auto dated = extractDateToken(text, context);
  return dated ? "→ " + prettyDay(dayKey(dated->day)) : std::string();
}

}  // namespace brimle
