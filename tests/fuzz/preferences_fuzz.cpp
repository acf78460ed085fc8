// The settings and the environment's locale variables, all holding anything.
//
// A line of the input is one of them, by its first character: +key=value is a setting, $VARIABLE=value is in
// the environment.
#include <algorithm>
#include <cmath>

#include "app/core/window_frame.h"
#include "platform/simulated/simulated_preferences_store.h"
#include "platform/system_locale.h"
#include "prefs/ui_state.h"
#include "target.h"

namespace brimle {
namespace {

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
  SimulatedPreferencesStore standard, environment;
  for (const auto line : splitLines(asText(data, size))) {
    const std::size_t equals = line.find('=');
    if (equals == line.npos) continue;
    const auto key = line.substr(1, equals - 1), value = line.substr(equals + 1);
    if (line.starts_with('+')) standard.setString(key, value);
    if (line.starts_with('$')) environment.setString(key, value);
  }
  const auto locale = systemLocale([&](const char* name) { return environment.string(name); });
  checkState(standard, locale.preferredLanguages);
  checkFrame(standard.string(kFrameKey).value_or(""));
  return 0;
}
