// Identities, days and signals.
#include <gtest/gtest.h>

#include <unordered_set>

#include "base/day.h"
#include "base/signal.h"
#include "base/uuid.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;

TEST(Uuid, IsReadInEitherCaseAndWrittenInUpperCase) {
  const std::string text = "1B4E28BA-2FA1-41D2-883F-0016D3CCA427";
  const auto id = Uuid::parse("1b4e28ba-2fa1-41D2-883f-0016d3cca427");
  ASSERT_TRUE(id);
  EXPECT_EQ(id->string(), text);
  EXPECT_EQ(id->bytes[15], 0x27);
  EXPECT_FALSE(Uuid::parse(text + "0"));
  for (std::size_t at = 0; at < text.size(); ++at) {
    EXPECT_FALSE(Uuid::parse(text.substr(0, at)));
    for (const char wrong : {'G', '/', ':', '@', '`', '\0', '\xC1', text[at] == '-' ? '0' : '-'}) {
      EXPECT_FALSE(Uuid::parse(std::string(text).replace(at, 1, 1, wrong))) << at << wrong;
    }
  }
}

TEST(Uuid, IsFreshAndOfVersionFour) {
  std::unordered_set<Uuid> seen;
  for (int count = 0; count < 1000; ++count) {
    const Uuid id = *seen.insert(Uuid::random()).first;
    EXPECT_EQ(id.string()[14], '4');
    EXPECT_NE(std::string("89AB").find(id.string()[19]), std::string::npos);
    EXPECT_EQ(Uuid::parse(id.string()), id);
  }
  EXPECT_EQ(seen.size(), 1000u);
}

TEST(Day, HasAKeyThatSortsAsTheCalendarDoes) {
  const std::string keys[] = {"0001-01-01", "0999-12-31", "1000-01-01",
                              "2024-02-29", "2026-06-15", "9999-12-31"};
  EXPECT_TRUE(std::ranges::is_sorted(keys, [](auto& a, auto& b) { return *parseDay(a) < *parseDay(b); }));
  for (const auto& key : keys) EXPECT_EQ(dayKey(parseDay(key).value()), key);
  EXPECT_EQ(parseDay("2026-6-5"), Day(2026y / 6 / 5));
  for (const char* text :
       {"", "2026", "2026-06-", "2026-06-15 ", " 2026-06-15", "26-06-15", "02026-06-15", "2026/06/15",
        "2026-06-015", "2026--6-15", "2026-+6-15", "2026-13-01", "2026-06-31", "1900-02-29", "0000-01-01"}) {
    EXPECT_FALSE(parseDay(text)) << text;
  }
  constexpr long long wrap = 1LL << 32;
  for (const auto& [year, month, day] :
       {std::tuple{10000LL, 1LL, 1LL}, {wrap + 2026, 1, 1}, {2026, 257, 1}, {2026, 1, 257}, {2026, 1, -1}}) {
    EXPECT_FALSE(makeDay(year, month, day)) << year << " " << month << " " << day;
  }
}

TEST(Signal, CallsItsObserversInOrderWhileTheySubscribe) {
  auto signal = std::make_unique<Signal<std::string>>();
  std::string heard;
  Subscription self, other, late[3];
  self = signal->subscribe(
      [&, own = std::string("self, whose words are kept while it ends ")](const std::string& told) {
        self = other = {};
        for (auto& one : late) one = signal->subscribe([&](const std::string& more) { heard += more; });
        heard += own + told;
      });
  other = signal->subscribe([&](const std::string&) { heard += "other"; });
  const auto last = signal->subscribe([&](const std::string& told) { heard += "last" + told; });
  signal->notify("1 ");
  EXPECT_EQ(heard, "self, whose words are kept while it ends 1 last1 ");
  heard.clear();
  signal->notify("2 ");
  EXPECT_EQ(heard, "last2 2 2 2 ");
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
