// The display settings and the transient flags of the window, with the values the views derive from them.
//
// The five settings are strings read once from the preferences; each change is written back at once and told
// to the observers. A string outside the known ones stays as it is and gives each derived value its default.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/signal.h"
#include "platform/preferences_store.h"

namespace brimle {

enum class FontDesign { standard, serif, rounded };

class UIState {
 public:
  /// Reads the settings and puts language and paper tone in force. `preferredLanguages` are the system's, for
  /// the language "system". Nothing is written.
  UIState(PreferencesStore& preferences, std::vector<std::string> preferredLanguages);

  // Stored settings.
  const std::string& fontDesign() const { return fontDesign_; }
  const std::string& textSize() const { return textSize_; }
  const std::string& language() const { return language_; }
  const std::string& paperTone() const { return paperTone_; }
  const std::string& margin() const { return margin_; }
  void setFontDesign(std::string value);
  void setTextSize(std::string value);
  void setLanguage(std::string value);
  void setPaperTone(std::string value);
  void setMargin(std::string value);

  // Transient state of the window.
  bool compact() const { return compact_; }
  bool hoveringWindow() const { return hoveringWindow_; }
  bool showingArchive() const { return showingArchive_; }
  bool archiveViewingFuture() const { return archiveViewingFuture_; }
  const std::string& archiveQuery() const { return archiveQuery_; }
  void setCompact(bool value);
  void setHoveringWindow(bool value);
  void setShowingArchive(bool value);
  void setArchiveViewingFuture(bool value);
  void setArchiveQuery(std::string value);

  // Derived.
  /// Horizontal inset of the list's content, in points.
  double listInset() const;
  /// Size of task text, in points.
  double baseSize() const;
  FontDesign design() const;

  /// Tells that a property was assigned.
  [[nodiscard]] Subscription observe(std::function<void()> observer) {
    return changed_.subscribe(std::move(observer));
  }

 private:
  std::string stored(std::string_view key, std::string_view fallback) const;
  void store(std::string& property, std::string_view key, std::string value);
  template <class Value>
  void assign(Value& property, Value value) {
    property = std::move(value);
    changed_.notify();
  }

  PreferencesStore& preferences_;
  const std::vector<std::string> preferredLanguages_;
  std::string fontDesign_;
  std::string textSize_;
  std::string language_;
  std::string paperTone_;
  std::string margin_;
  bool compact_ = false;
  bool hoveringWindow_ = false;
  bool showingArchive_ = false;
  bool archiveViewingFuture_ = false;
  std::string archiveQuery_;
  Signal<> changed_;
};

}  // namespace brimle
