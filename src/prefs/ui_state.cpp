#include "prefs/ui_state.h"

#include <array>
#include <utility>

#include "i18n/i18n.h"
#include "prefs/palette.h"

namespace brimle {
namespace {

/// What a stored string means; strings that are in no row mean the fallback.
template <class Value>
struct Meaning {
  std::string_view setting;
  Value value;
};

template <class Value, std::size_t Size>
Value meaningOf(std::string_view setting, const std::array<Meaning<Value>, Size>& table, Value fallback) {
  for (const auto& row : table) {
    if (row.setting == setting) return row.value;
  }
  return fallback;
}

constexpr std::array<Meaning<double>, 2> kListInsets{{{"narrow", 10}, {"flush", 4}}};
constexpr std::array<Meaning<double>, 2> kBaseSizes{{{"small", 12}, {"large", 15}}};
constexpr std::array<Meaning<FontDesign>, 2> kDesigns{
    {{"serif", FontDesign::serif}, {"rounded", FontDesign::rounded}}};

}  // namespace

UIState::UIState(PreferencesStore& preferences, std::vector<std::string> preferredLanguages)
    : preferences_(preferences),
      preferredLanguages_(std::move(preferredLanguages)),
      fontDesign_(stored("fontDesign", "system")),
      textSize_(stored("textSize", "medium")),
      language_(stored("language", "system")),
      paperTone_(stored("paperTone", "warm")),
      margin_(stored("margin", "standard")) {
  I18n::setLang(I18n::resolve(language_, preferredLanguages_));
  Palette::setTone(paperTone_);
}

std::string UIState::stored(std::string_view key, std::string_view fallback) const {
  return preferences_.string(key).value_or(std::string(fallback));
}

void UIState::store(std::string& property, std::string_view key, std::string value) {
  preferences_.setString(key, value);
  property = std::move(value);
}

void UIState::setFontDesign(std::string value) {
  store(fontDesign_, "fontDesign", std::move(value));
  changed_.notify();
}

void UIState::setTextSize(std::string value) {
  store(textSize_, "textSize", std::move(value));
  changed_.notify();
}

void UIState::setLanguage(std::string value) {
  store(language_, "language", std::move(value));
  I18n::setLang(I18n::resolve(language_, preferredLanguages_));
  changed_.notify();
}

void UIState::setPaperTone(std::string value) {
  store(paperTone_, "paperTone", std::move(value));
  Palette::setTone(paperTone_);
  changed_.notify();
}

void UIState::setMargin(std::string value) {
  store(margin_, "margin", std::move(value));
  changed_.notify();
}

void UIState::setCompact(bool value) {
  assign(compact_, value);
}
void UIState::setHoveringWindow(bool value) {
  assign(hoveringWindow_, value);
}
void UIState::setShowingArchive(bool value) {
  assign(showingArchive_, value);
}
void UIState::setArchiveViewingFuture(bool value) {
  assign(archiveViewingFuture_, value);
}
void UIState::setArchiveQuery(std::string value) {
  assign(archiveQuery_, std::move(value));
}

double UIState::listInset() const {
  return meaningOf(margin_, kListInsets, 16.0);
}
double UIState::baseSize() const {
  return meaningOf(textSize_, kBaseSizes, 13.0);
}
FontDesign UIState::design() const {
  return meaningOf(fontDesign_, kDesigns, FontDesign::standard);
}

}  // namespace brimle
