// The languages of the interface, and which of them a system setting means.
#include "i18n/i18n.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimle {
namespace {

struct InterfaceLanguage : testing::Test {
  ~InterfaceLanguage() override { I18n::setLang("en"); }
};

TEST_F(InterfaceLanguage, IsEnglishBeforeItIsSet) {
  EXPECT_EQ(I18n::lang(), "en");
}

TEST_F(InterfaceLanguage, LooksUpATextAndGivesBackWhatIsNoKey) {
  const struct {
    const char* code;
    const char* key;
    const char* text;
  } cases[] = {
      {"en", "Add a task", "Add a task"},
      {"en", "no such text", "no such text"},
      {"de", "Yesterday", "Gestern"},
      {"de", "Yesterday ", "Yesterday "},
      {"de", "yesterday", "yesterday"},
      {"de", "Menu", "Menü"},
      {"de", "", ""},
      {"ja", "tomorrow", "明日"},
      {"zh-Hant", "Add a task", "加入任務"},
      {"zh", "Yesterday", "Yesterday"},
      {"xx", "Yesterday", "Yesterday"},
      {"system", "Yesterday", "Yesterday"},
      {"", "Yesterday", "Yesterday"},
  };
  for (const auto& [code, key, text] : cases) {
    I18n::setLang(code);
    EXPECT_EQ(I18n::t(key), text) << code << ": " << key;
  }
}

TEST_F(InterfaceLanguage, EveryLanguageIsListedWithItsOwnNameAndLocale) {
  std::vector<std::string> rows;
  for (const I18n::Language& language : I18n::languages()) {
    rows.push_back(std::string(language.code).append(" ").append(language.name));
    I18n::setLang(std::string(language.code));
    EXPECT_EQ(I18n::locale(), language.locale);
  }
  EXPECT_THAT(rows,
              testing::ElementsAre("en English", "es Español", "de Deutsch", "fr Français", "it Italiano",
                                   "nl Nederlands", "pt Português", "id Bahasa Indonesia", "ja 日本語",
                                   "ko 한국어", "zh-Hans 简体中文", "zh-Hant 繁體中文"));
}

TEST_F(InterfaceLanguage, DatesFollowTheCodeAndUnknownCodesAreBritish) {
  const std::pair<const char*, const char*> cases[] = {{"en", "en_GB"},      {"pt", "pt_BR"},
                                                       {"zh-Hans", "zh_CN"}, {"zh-Hant", "zh_TW"},
                                                       {"xx", "en_GB"},      {"system", "en_GB"}};
  for (const auto& [code, locale] : cases) {
    I18n::setLang(code);
    EXPECT_EQ(I18n::locale(), locale) << code;
  }
}

TEST(ResolvingTheLanguageSetting, LeavesEverythingButSystemAlone) {
  for (const char* setting : {"fr", "xx", "", "System", "system "}) {
    EXPECT_EQ(I18n::resolve(setting, {"de-DE"}), setting);
  }
}

TEST(ResolvingTheLanguageSetting, TakesSystemFromTheFirstPreferredTagAlone) {
  const struct {
    std::vector<std::string> preferred;
    const char* code;
  } cases[] = {
      {{}, "en"},
      {{""}, "en"},
      {{"en-US"}, "en"},
      {{"sv-SE", "de-DE"}, "en"},
      {{"DE-de"}, "en"},
      {{"es-419"}, "es"},
      {{"de-CH", "fr"}, "de"},
      {{"fr"}, "fr"},
      {{"it-IT"}, "it"},
      {{"nl-BE"}, "nl"},
      {{"pt-PT"}, "pt"},
      {{"id-ID"}, "id"},
      {{"ja-JP"}, "ja"},
      {{"ko-KR"}, "ko"},
      {{"zh-Hant-HK", "en"}, "zh-Hant"},
      {{"zh-TW"}, "zh-Hant"},
      {{"zh-HK"}, "zh-Hant"},
      {{"zh-MO"}, "zh-Hans"},
      {{"zh-Hans-CN"}, "zh-Hans"},
      {{"zh"}, "zh-Hans"},
  };
  for (const auto& [preferred, code] : cases) {
    EXPECT_EQ(I18n::resolve("system", preferred), code) << testing::PrintToString(preferred);
  }
}

TEST(ResolvingTheLanguageSetting, KnowsEveryLanguageByItsOwnTag) {
  for (const I18n::Language& language : I18n::languages()) {
    EXPECT_EQ(I18n::resolve("system", {std::string(language.code)}), language.code);
  }
}

}  // namespace
}  // namespace brimle
