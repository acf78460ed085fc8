// The interface language: one process-wide code, and the lookup of every text in it.
//
// Texts are keyed by their English wording; a text that has no translation comes back unchanged. Main thread
// only.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brimle::I18n {

/// One row of a translation table: the English text and what it is in the table's language.
struct Translation {
  std::string_view key;
  std::string_view text;
};

/// A language of the interface.
struct Language {
  std::string_view code;
  std::string_view name;    ///< in its own script, never translated
  std::string_view locale;  ///< ICU identifier for dates
};

/// The twelve languages in the order of the Language menu, English first.
std::span<const Language> languages();

/// The code in force, "en" before it is set.
const std::string& lang();
/// Puts a code in force; one that names no language behaves as English.
void setLang(std::string code);

/// The text for an English key in the current language; the key itself where there is none.
std::string t(std::string_view key);

/// The language code of a stored "language" setting. "system" is resolved by the first entry of `preferred`,
/// the system's ordered BCP 47 tags; anything else is returned unchanged.
std::string resolve(std::string_view setting, const std::vector<std::string>& preferred);

/// The formatting locale (ICU identifier) of the current language; "en_GB" for an unknown code.
std::string_view locale();

/// The rows of a language's table of the 97 interface texts; empty for English and unknown codes.
std::span<const Translation> table(std::string_view code);
/// The rows of a language's table of the texts that our desktop adds.
std::span<const Translation> desktopTable(std::string_view code);

}  // namespace brimle::I18n
