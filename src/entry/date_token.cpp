#include "entry/date_token.h"

#include <algorithm>
#include <charconv>

#include "base/text.h"
#include "entry/month_names.h"

namespace brimle {
namespace {

constexpr std::string_view kOpening = " >";
constexpr std::string_view kSeparators = "/.-";
constexpr std::string_view kDigits = "0123456789";

/// What a token says, not yet known to be a day of the calendar.
struct DateParts {
  std::optional<long long> year;
  long long month;
  long long day;
};

/// A number at one end of a text, and what is left of the text without it.
struct Numbered {
  long long number;
  std::string_view rest;
};

/// The value of a text, without hyphens, that is digits alone and fits.
std::optional<long long> digitsValue(std::string_view text) {
  long long value = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return value;
}

std::optional<long long> wholeNumber(std::string_view text) {
  return digitsValue(text.starts_with('+') ? text.substr(1) : text);
}

/// Takes the next piece between separators off the front of `token`; empty where none is left.
std::string_view takePiece(std::string_view& token) {
  token.remove_prefix(std::min(token.find_first_not_of(kSeparators), token.size()));
  const std::string_view piece = token.substr(0, token.find_first_of(kSeparators));
  token.remove_prefix(piece.size());
  return piece;
}

/// Reads 12/9 and 12/9/27. Pieces after the third are ignored, and so is a third that is no number.
std::optional<DateParts> readNumbers(std::string_view token, const Region& region) {
  const auto first = wholeNumber(takePiece(token));
  const auto second = wholeNumber(takePiece(token));
  if (!first || !second) return std::nullopt;
  auto year = wholeNumber(takePiece(token));
  if (year && *year <= 99) *year += 2000;
  const bool dayIsSecond = *first <= 12 && (*second > 12 || region.monthFirst);
  if (dayIsSecond) return DateParts{year, *first, *second};
  return DateParts{year, *second, *first};
}

/// Splits "12 march 2027" into 12 and "march 2027"; nothing without a number there and a space after it.
std::optional<Numbered> splitLeadingNumber(std::string_view text) {
  const std::string_view digits = text.substr(0, text.find_first_not_of(kDigits));
  const std::string_view spaced = text.substr(digits.size());
  const std::string_view rest = trimmed(spaced);
  const auto number = digitsValue(digits);
  if (!number || rest.size() == spaced.size()) return std::nullopt;
  return Numbered{*number, rest};
}

/// Splits "march 2027" into "march" and 2027; nothing without a number there and a space before it.
std::optional<Numbered> splitTrailingNumber(std::string_view text) {
  const std::size_t spacedSize = text.find_last_not_of(kDigits) + 1;  // 0 where all of it is digits
  const std::string_view rest = trimmed(text.substr(0, spacedSize));
  const auto number = digitsValue(text.substr(spacedSize));
  if (!number || rest.size() == spacedSize) return std::nullopt;
  return Numbered{*number, rest};
}

/// Reads "12 march 2027", "12 march" and "march 12".
std::optional<DateParts> readNames(std::string_view token, const MonthNames& names) {
  if (const auto leading = splitLeadingNumber(token)) {
    if (const auto trailing = splitTrailingNumber(leading->rest)) {
      if (const auto month = names.find(trailing->rest)) {
        return DateParts{trailing->number, *month, leading->number};
      }
    }
    if (const auto month = names.find(leading->rest)) return DateParts{{}, *month, leading->number};
  }
  if (const auto trailing = splitTrailingNumber(token)) {
    if (const auto month = names.find(trailing->rest)) return DateParts{{}, *month, trailing->number};
  }
  return std::nullopt;
}

std::optional<DateParts> readNames(std::string_view token, const EntryContext& context) {
  if (const auto parts = readNames(token, monthNames(context.locale))) return parts;
  return readNames(token, monthNames(kBritishEnglish));
}

std::optional<Day> ifLater(std::optional<Day> day, Day today) {
  return day && *day > today ? day : std::nullopt;
}

/// The day in the year given, else in this year or the next, whichever is first to have it after today.
std::optional<Day> laterDay(const DateParts& parts, Day today) {
  if (parts.year) return ifLater(makeDay(*parts.year, parts.month, parts.day), today);
  const int year = static_cast<int>(today.year());
  if (const auto day = ifLater(makeDay(year, parts.month, parts.day), today)) return day;
  return ifLater(makeDay(year + 1, parts.month, parts.day), today);
}

}  // namespace

std::optional<Day> parseDateToken(std::string_view token, const EntryContext& context) {
  token = trimmed(token);
  if (const auto day = parseDay(token)) return ifLater(day, context.today);
  // From here on the first form that reads the token decides, even where it then names no day.
  auto parts = readNumbers(token, context.region);
  if (!parts) parts = readNames(token, context);
  return parts ? laterDay(*parts, context.today) : std::nullopt;
}

std::optional<DatedText> extractDateToken(std::string_view text, const EntryContext& context) {
  const std::size_t at = text.rfind(kOpening);
  if (at == std::string_view::npos) return std::nullopt;
  const std::string_view before = trimmed(text.substr(0, at));
  if (before.empty()) return std::nullopt;
  const auto day = parseDateToken(text.substr(at + kOpening.size()), context);
  if (!day) return std::nullopt;
  return DatedText{before, *day};
}

}  // namespace brimle
