// Identities, days and signals.
#include <gtest/gtest.h>

#include <utility>

#include "base/day.h"
#include "base/signal.h"
#include "base/uuid.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;

TEST(Uuid, IsReadInEitherCaseAndWrittenInUpperCase) {
  const std::string text = "1B4E28BA-2FA1-41D2-883F-0016D3CCA427";
  EXPECT_EQ(Uuid::parse("1b4e28ba-2fa1-41D2-883f-0016d3cca427").value().string(), text);
  EXPECT_FALSE(Uuid::parse(text + "0"));
  for (std::size_t at = 0; at < text.size(); ++at) {
    EXPECT_FALSE(Uuid::parse(text.substr(0, at)));
    for (const char wrong : {'G', '/', ':', '@', '`', '\0', '\xC1', text[at] == '-' ? '0' : '-'}) {
      EXPECT_FALSE(Uuid::parse(std::string(text).replace(at, 1, 1, wrong))) << at << wrong;
    }
  }
  const Uuid id = Uuid::random();
  EXPECT_EQ(Uuid::parse(id.string()), id);
  EXPECT_EQ(id.string()[14], '4');
  EXPECT_NE(std::string("89AB").find(id.string()[19]), std::string::npos);
}

TEST(Day, HasAKeyThatSortsAsTheCalendarDoes) {
  std::string previous;
  for (const Day day :
       {1y / 1 / 1, 999y / 12 / 31, 1000y / 1 / 1, 2024y / 2 / 29, 2026y / 6 / 5, 9999y / 12 / 31}) {
    EXPECT_EQ(parseDay(dayKey(day)), day);
    EXPECT_LT(std::exchange(previous, dayKey(day)), dayKey(day));
  }
  EXPECT_EQ(parseDay("2026-6-5"), Day(2026y / 6 / 5));
  for (const char* text :
       {"", "2026", "2026-06-", "2026-06-15 ", " 2026-06-15", "26-06-15", "02026-06-15", "2026/06/15",
        "2026-06-015", "2026--6-15", "2026-13-01", "2026-06-31", "1900-02-29", "0000-01-01"}) {
    EXPECT_FALSE(parseDay(text)) << text;
  }
  constexpr long long wrap = 1LL << 32;
  for (const auto& [year, month, day] :
       {std::tuple{10000LL, 1LL, 1LL}, {wrap + 2026, 1, 1}, {2026, 257, 1}, {2026, 1, 257}, {2026, 1, -1}}) {
    EXPECT_FALSE(makeDay(year, month, day)) << year << " " << month << " " << day;
  }
}

TEST(Signal, CallsItsObserversInOrderWhileTheySubscribe) {
  Signal<std::string> signal;
  std::string heard;
  Subscription self, other, late;
  self =
      signal.subscribe([&, own = std::string("self, whose words are kept while it ends ")](const auto& told) {
        self = other = {};
        late = signal.subscribe([&](const auto& more) { heard += more; });
        heard += own + told;
      });
  other = signal.subscribe([&](const auto&) { heard += "other"; });
  const auto last = signal.subscribe([&](const auto& told) { heard += "last" + told; });
  signal.notify("1 ");
  EXPECT_EQ(std::exchange(heard, ""), "self, whose words are kept while it ends 1 last1 ");
  signal.notify("2 ");
  EXPECT_EQ(heard, "last2 2 ");
}

TEST(Signal, MayGoBeforeItsSubscriptionsEvenWhileItCalls) {
  auto signal = std::make_unique<Signal<>>();
  int calls = 0;
  const auto ending = signal->subscribe([&] { signal.reset(); });
  const auto other = signal->subscribe([&] { ++calls; });
  signal->notify();
  EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace brimle
