#include "i18n/i18n.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <utility>

#include "i18n/tables/tables.h"

namespace brimle::I18n {
namespace {

constexpr std::array<Language, 12> kLanguages = {{
    {"en", "English", "en_GB"},
    {"es", "Español", "es_ES"},
    {"de", "Deutsch", "de_DE"},
    {"fr", "Français", "fr_FR"},
    {"it", "Italiano", "it_IT"},
    {"nl", "Nederlands", "nl_NL"},
    {"pt", "Português", "pt_BR"},
    {"id", "Bahasa Indonesia", "id_ID"},
    {"ja", "日本語", "ja_JP"},
    {"ko", "한국어", "ko_KR"},
    {"zh-Hans", "简体中文", "zh_CN"},
    {"zh-Hant", "繁體中文", "zh_TW"},
}};

struct Tables {
  std::string_view code;
  std::span<const Translation> texts;
  std::span<const Translation> desktopTexts;
};

constexpr std::array<Tables, 11> kTables = {{
    {"es", kSpanish, kSpanishDesktop},
    {"ja", kJapanese, kJapaneseDesktop},
    {"de", kGerman, kGermanDesktop},
    {"fr", kFrench, kFrenchDesktop},
    {"it", kItalian, kItalianDesktop},
    {"nl", kDutch, kDutchDesktop},
    {"pt", kPortuguese, kPortugueseDesktop},
    {"id", kIndonesian, kIndonesianDesktop},
    {"ko", kKorean, kKoreanDesktop},
    {"zh-Hans", kChineseSimplified, kChineseSimplifiedDesktop},
    {"zh-Hant", kChineseTraditional, kChineseTraditionalDesktop},
}};

/// What the beginning of a system's language tag says of the language; the first that fits decides.
constexpr std::pair<std::string_view, std::string_view> kTagPrefixes[] = {
    {"es", "es"},         {"de", "de"},         {"fr", "fr"},      {"it", "it"}, {"nl", "nl"},
    {"pt", "pt"},         {"id", "id"},         {"ja", "ja"},      {"ko", "ko"}, {"zh-Hant", "zh-Hant"},
    {"zh-TW", "zh-Hant"}, {"zh-HK", "zh-Hant"}, {"zh", "zh-Hans"},
};

using Index = std::unordered_map<std::string_view, std::string_view>;

Index indexOf(const Tables& tables) {
  Index index;
  index.reserve(tables.texts.size() + tables.desktopTexts.size());
  for (const auto rows : {tables.texts, tables.desktopTexts}) {
    for (const Translation& row : rows) index.emplace(row.key, row.text);
  }
  return index;
}

/// The texts of every translated language, built when the first of them is asked for.
const std::unordered_map<std::string_view, Index>& indexes() {
  static const auto all = [] {
    std::unordered_map<std::string_view, Index> built;
    built.reserve(kTables.size());
    for (const Tables& tables : kTables) built.emplace(tables.code, indexOf(tables));
    return built;
  }();
  return all;
}

const Tables* tablesOf(std::string_view code) {
  const auto* found = std::ranges::find(kTables, code, &Tables::code);
  return found == kTables.end() ? nullptr : found;
}

std::string& current() {
  static std::string code = "en";
  return code;
}

}  // namespace

std::span<const Language> languages() {
  return kLanguages;
}

const std::string& lang() {
  return current();
}

void setLang(std::string code) {
  current() = std::move(code);
}

std::string t(std::string_view key) {
  if (lang() == "en") return std::string(key);
  const auto index = indexes().find(lang());
  if (index == indexes().end()) return std::string(key);
  const auto row = index->second.find(key);
  return std::string(row == index->second.end() ? key : row->second);
}

std::string resolve(std::string_view setting, const std::vector<std::string>& preferred) {
  if (setting != "system") return std::string(setting);
  if (preferred.empty()) return "en";
  for (const auto& [prefix, code] : kTagPrefixes) {
    if (preferred.front().starts_with(prefix)) return std::string(code);
  }
  return "en";
}

std::string_view locale() {
  const auto* found = std::ranges::find(kLanguages, std::string_view(lang()), &Language::code);
  return found == kLanguages.end() ? kLanguages.front().locale : found->locale;
}

std::span<const Translation> table(std::string_view code) {
  const Tables* tables = tablesOf(code);
  return tables ? tables->texts : std::span<const Translation>();
}

std::span<const Translation> desktopTable(std::string_view code) {
  const Tables* tables = tablesOf(code);
  return tables ? tables->desktopTexts : std::span<const Translation>();
}

}  // namespace brimle::I18n
