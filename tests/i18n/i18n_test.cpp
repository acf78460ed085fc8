// The languages of the interface, and which of them a system setting means.
#include "i18n/i18n.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimle {
namespace {

struct InterfaceLanguage : testing::Test {
  ~InterfaceLanguage() override { I18n::setLang("en"); }
};

TEST_F(InterfaceLanguage, LooksUpATextAndGivesBackWhatIsNoKey) {
  const std::pair<const char*, const char*> table[] = {
      {"en", "Yesterday"}, {"es", "Ayer"},      {"de", "Gestern"},   {"fr", "Hier"},         {"it", "Ieri"},
      {"nl", "Gisteren"},  {"pt", "Ontem"},     {"id", "Kemarin"},   {"ja", "昨日"},         {"ko", "어제"},
      {"zh-Hans", "昨天"}, {"zh-Hant", "昨天"}, {"zh", "Yesterday"}, {"system", "Yesterday"}};
  for (const auto& [code, text] : table) {
    I18n::setLang(code);
    EXPECT_EQ(I18n::t("Yesterday"), text) << code;
    EXPECT_EQ(I18n::t("yesterday") + I18n::t(""), "yesterday") << code;
  }
  const std::tuple<const char*, const char*, const char*> others[] = {
      {"de", "Menu", "Menü"}, {"zh-Hans", "Add a task", "添加任务"}, {"zh-Hant", "Add a task", "加入任務"}};
  for (const auto& [code, key, text] : others) {
    I18n::setLang(code);
    EXPECT_EQ(I18n::t(key), text) << code;
  }
}

TEST_F(InterfaceLanguage, EveryLanguageIsListedWithItsOwnNameAndLocale) {
  std::vector<std::string> rows;
  for (const I18n::Language& language : I18n::languages()) {
    rows.push_back(std::string(language.code).append(" ").append(language.name));
    I18n::setLang(std::string(language.code));
    EXPECT_EQ(I18n::locale(), language.locale);
    EXPECT_EQ(I18n::resolve("system", {std::string(language.code) + "-XX"}), language.code);
  }
  EXPECT_THAT(rows,
              testing::ElementsAre("en English", "es Español", "de Deutsch", "fr Français", "it Italiano",
                                   "nl Nederlands", "pt Português", "id Bahasa Indonesia", "ja 日本語",
                                   "ko 한국어", "zh-Hans 简体中文", "zh-Hant 繁體中文"));
}

TEST(ResolvingTheLanguageSetting, LeavesEverythingButSystemAlone) {
  for (const char* setting : {"fr", "xx", "", "System", "system "}) {
    EXPECT_EQ(I18n::resolve(setting, {"de-DE"}), setting);
  }
}

TEST(ResolvingTheLanguageSetting, TakesSystemFromTheFirstPreferredTagAlone) {
  const std::pair<std::vector<std::string>, const char*> cases[] = {
      {{}, "en"},
      {{""}, "en"},
      {{"en-US"}, "en"},
      {{"DE-de"}, "en"},
      {{"es-419"}, "es"},
      {{"tlh", "de-DE"}, "en"},
      {{"fr"}, "fr"},
      {{"zh-TW"}, "zh-Hant"},
      {{"zh-Hant-HK", "en"}, "zh-Hant"},
      {{"zh-HK"}, "zh-Hant"},
      {{"zh-MO"}, "zh-Hans"},
      {{"zh-Hans-CN"}, "zh-Hans"},
      {{"zh"}, "zh-Hans"},
  };
  for (const auto& [preferred, code] : cases) {
    EXPECT_EQ(I18n::resolve("system", preferred), code) << testing::PrintToString(preferred);
  }
}

}  // namespace
}  // namespace brimle
