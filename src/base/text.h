// Unicode text in UTF-8: the two whitespace sets, trimming, lines, validity and comparison.
//
// Whitespace is the tab and the space separators (general category Zs). Newlines are U+000A to U+000D,
// U+0085, U+2028 and U+2029 (Unicode Standard, section 5.8). All functions take any bytes and never fail;
// bytes that are not UTF-8 are neither whitespace nor newlines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brimle {

/// `text` without whitespace at both ends.
std::string_view trimmed(std::string_view text);
/// `text` without whitespace and newlines at both ends.
std::string_view trimmedLines(std::string_view text);

/// Whether a code point is a newline.
constexpr bool isNewline(char32_t c) {
  return (c >= 0x0A && c <= 0x0D) || c == 0x85 || c == 0x2028 || c == 0x2029;
}
bool containsNewline(std::string_view text);
/// The pieces between newlines, empty ones included; a text without a newline is one piece.
std::vector<std::string_view> splitLines(std::string_view text);

bool isValidUtf8(std::string_view text);
/// `text` with each ill-formed sequence replaced by U+FFFD (Unicode Standard, section 3.9).
std::string toValidUtf8(std::string_view text);

/// True where both texts are canonically equivalent (UAX #15): é in one code point or in two is the same
/// text.
bool canonicallyEqual(std::string_view a, std::string_view b);

/// The text in composed form (NFC) and full case folding: what two texts are compared by where case does not
/// count. Marks stay significant.
std::string folded(std::string_view text);
/// Appends the folded text to `out`.
void appendFolded(std::string& out, std::string_view text);

/// True where the text begins with a mark (general category M), which belongs to the character before it.
bool startsWithMark(std::string_view text);

}  // namespace brimle
