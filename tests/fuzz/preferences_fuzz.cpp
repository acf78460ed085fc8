// The settings, ours and the predecessor's, and the environment's locale variables, all holding anything.
//
// A line of the input is one of them, by its first character: +key=value is a setting, -key=value one of the
// predecessor's, $VARIABLE=value is in the environment, and # makes the predecessor's settings unreadable.
#include <algorithm>
#include <cmath>

#include "app/core/window_frame.h"
#include "platform/simulated/simulated_preferences_store.h"
#include "platform/system_locale.h"
#include "prefs/migration.h"
#include "prefs/ui_state.h"
#include "target.h"

namespace brimle {
namespace {

struct Settings {
  SimulatedPreferencesStore standard;
  SimulatedPreferencesStore predecessor;
  SimulatedPreferencesStore environment;
};

Settings settingsIn(std::string_view bytes) {
  Settings settings;
  for (Input input(bytes); !input.rest().empty();) {
    const std::string_view line = input.line();
    if (line.starts_with('#')) settings.predecessor.open = false;
    const std::size_t equals = line.find('=');
    if (equals == line.npos) continue;
    const auto key = line.substr(1, equals - 1), value = line.substr(equals + 1);
    if (line.starts_with('+')) settings.standard.setString(key, value);
    if (line.starts_with('-')) settings.predecessor.setString(key, value);
    if (line.starts_with('$')) settings.environment.setString(key, value);
  }
  return settings;
}

void checkMigration(SimulatedPreferencesStore& standard, const SimulatedPreferencesStore& predecessor) {
  const auto before = standard.values;
  const auto done = standard.string("migratedFromQuorel");
  migrateFromQuorel(standard, predecessor);
  const auto after = standard.values;
  if (done == "true" || !predecessor.open) return require(after == before, "nothing is taken over");
  for (const auto& [key, value] : after) {
    if (key == "migratedFromQuorel") continue;
    const auto old = before.find(key);
    require(old == before.end() ? predecessor.string(key) == value : old->second == value,
            "a setting is kept, or taken over as it was");
  }
  migrateFromQuorel(standard, predecessor);
  require(standard.values == after, "it is done once");
}

void checkState(SimulatedPreferencesStore& standard, const std::vector<std::string>& languages) {
  const auto before = standard.values;
  UIState state(standard, languages);
  require(standard.values == before, "reading the settings writes none");
  require(state.listInset() >= 4 && state.listInset() <= 16, "an inset is known");
  require(state.baseSize() >= 12 && state.baseSize() <= 15, "a size is known");
  require(I18n::lang() == I18n::resolve(state.language(), languages), "the language is in force");
  require(!I18n::locale().empty() && isValidUtf8(I18n::t("Archive")), "the interface speaks");

  state.setLanguage(state.paperTone());
  require(UIState(standard, languages).language() == state.language(),
          "what is set is there at the next launch");
}

void checkFrame(std::string_view text) {
  const auto frame = readFrame(text);
  if (!frame) return;
  for (const double number : {frame->x, frame->y, frame->width, frame->height}) {
    require(std::abs(number) <= 100'000, "a frame is on some desktop");
  }
  require(frame->width >= 1 && frame->height >= 1, "a frame has a size");
  require(readFrame(frameText(*frame)) == frame, "a frame reads as what was written");
}

}  // namespace
}  // namespace brimle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brimle;
  Settings settings = settingsIn(asText(data, size));
  const SystemLocale locale =
      systemLocale([&](const char* name) { return settings.environment.string(name); });
  checkMigration(settings.standard, settings.predecessor);
  checkState(settings.standard, locale.preferredLanguages);
  checkFrame(settings.standard.string(kFrameKey).value_or(""));
  return 0;
}
