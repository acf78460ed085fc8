#include "base/text.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>

namespace brimle {
namespace {

bool isSpace(UChar32 c) {
  return c == '\t' || c == ' ' || c == 0xA0 || c == 0x1680 || (c >= 0x2000 && c <= 0x200A) || c == 0x202F ||
         c == 0x205F || c == 0x3000;
}

bool isSpaceOrNewline(UChar32 c) {
  return isSpace(c) || isNewline(static_cast<char32_t>(c));
}

/// Steps `at` back over one code point, which it gives; a byte of an ill-formed sequence is one step and
/// negative.
UChar32 previousCodePoint(const std::uint8_t* bytes, std::size_t begin, std::size_t& at) {
  const std::size_t end = at;
  std::size_t start = end - 1;
  while (start > begin && end - start < 4 && U8_IS_TRAIL(bytes[start])) --start;
  UChar32 c;
  std::size_t next = start;
  U8_NEXT(bytes, next, end, c);
  at = next == end ? start : end - 1;
  return next == end ? c : U_SENTINEL;
}

template <class InSet>
std::string_view trim(std::string_view text, InSet inSet) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  std::size_t begin = 0;
  std::size_t end = text.size();
  for (std::size_t next = begin; begin < end; begin = next) {
    UChar32 c;
    U8_NEXT(bytes, next, end, c);
    if (!inSet(c)) break;
  }
  for (std::size_t previous = end; end > begin; end = previous) {
    if (!inSet(previousCodePoint(bytes, begin, previous))) break;
  }
  return text.substr(begin, end - begin);
}

/// The next newline at or after `from`: its position and length; {npos, 0} where there is none.
std::pair<std::size_t, std::size_t> findNewline(std::string_view text, std::size_t from) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  for (std::size_t at = from; at < text.size();) {
    const std::size_t start = at;
    UChar32 c;
    U8_NEXT(bytes, at, text.size(), c);
    if (isNewline(static_cast<char32_t>(c))) return {start, at - start};
  }
  return {std::string_view::npos, 0};
}

bool isAscii(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) < 0; });
}

icu::UnicodeString toUtf16(std::string_view text) {
  const std::size_t length = std::min<std::size_t>(text.size(), std::numeric_limits<std::int32_t>::max());
  return icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<std::int32_t>(length)));
}

const icu::Normalizer2* composer() {
  UErrorCode status = U_ZERO_ERROR;
  const auto* instance = icu::Normalizer2::getNFCInstance(status);
  return U_SUCCESS(status) ? instance : nullptr;
}

icu::UnicodeString composed(const icu::UnicodeString& text) {
  const auto* nfc = composer();
  if (!nfc) return text;
  UErrorCode status = U_ZERO_ERROR;
  icu::UnicodeString result = nfc->normalize(text, status);
  return U_SUCCESS(status) ? result : text;
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  return trim(text, isSpace);
}
std::string_view trimmedLines(std::string_view text) {
  return trim(text, isSpaceOrNewline);
}

bool containsNewline(std::string_view text) {
  return findNewline(text, 0).second != 0;
}

std::vector<std::string_view> splitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  for (std::size_t from = 0;;) {
    const auto [at, length] = findNewline(text, from);
    if (length == 0) {
      lines.push_back(text.substr(from));
      return lines;
    }
    lines.push_back(text.substr(from, at - from));
    from = at + length;
  }
}

bool isValidUtf8(std::string_view text) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  for (std::size_t at = 0; at < text.size();) {
    UChar32 c;
    U8_NEXT(bytes, at, text.size(), c);
    if (c < 0) return false;
  }
  return true;
}

std::string toValidUtf8(std::string_view text) {
  if (isValidUtf8(text)) return std::string(text);
  constexpr std::string_view replacement = "\uFFFD";
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  std::string valid;
  valid.reserve(text.size() + replacement.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    UChar32 c;
    U8_NEXT(bytes, at, text.size(), c);
    valid += c < 0 ? replacement : text.substr(start, at - start);
  }
  return valid;
}

bool canonicallyEqual(std::string_view a, std::string_view b) {
  if (a == b) return true;
  if (isAscii(a) && isAscii(b)) return false;
  return composed(toUtf16(a)) == composed(toUtf16(b));
}

void appendFolded(std::string& out, std::string_view text) {
  if (!isAscii(text)) {
    // Folding can undo composition, so the result is composed once more.
    composed(composed(toUtf16(text)).foldCase()).toUTF8String(out);
    return;
  }
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; };
  std::transform(text.begin(), text.end(), std::back_inserter(out), lower);
}

std::string folded(std::string_view text) {
  std::string result;
  appendFolded(result, text);
  return result;
}

bool startsWithMark(std::string_view text) {
  if (text.empty() || static_cast<signed char>(text.front()) >= 0) return false;
  UChar32 c;
  std::size_t at = 0;
  U8_NEXT(reinterpret_cast<const std::uint8_t*>(text.data()), at, text.size(), c);
  return c >= 0 && (U_GET_GC_MASK(c) & U_GC_M_MASK) != 0;
}

}  // namespace brimle
