// How waiting reminders are written down, and which lines are read again.
#include "platform/pending_notifications.h"

#include <gmock/gmock.h>

namespace brimle {
namespace {

using namespace std::chrono_literals;

TEST(PendingNotifications, BytesGiveBackEveryRequestWhateverItsText) {
  const std::vector<NotificationRequest> requests = {
      {"waits", "no date", "", std::nullopt},
      {"", "", "", {{1y / 1 / 1, 0}}},
      {"odd\t\n\\", "tab\t, line\n, \\n, \\\\t", std::string("NUL \0 and \xFF", 10), {{9999y / 12 / 31, 23}}},
  };
  PendingNotifications pending;
  for (const auto& request : requests) pending.add(request);
  EXPECT_THAT(PendingNotifications(pending.bytes()).requests(), testing::ElementsAreArray(requests));
}

TEST(PendingNotifications, LinesOfAnotherFormAreLeftOut) {
  const std::string sound = "2026-06-16 8\ta\ttitle\tbody\n";
  for (const char* line :
       {"", "garbage", "\t\t\t", "-\ta\tb", "-\ta\tb\tc\td", "-\ta\tb\\\tc", "-\ta\\x\tb\tc",
        "2026-06-16\ta\tb\tc", "2026-06-31 8\ta\tb\tc", "2026-06-16 24\ta\tb\tc", "2026-06-16 -1\ta\tb\tc",
        "2026-06-16 8 \ta\tb\tc", "2026-06-16 8h\ta\tb\tc"}) {
    EXPECT_EQ(PendingNotifications(line + ('\n' + sound + line)).bytes(), sound) << line;
  }
}

}  // namespace
}  // namespace brimle
