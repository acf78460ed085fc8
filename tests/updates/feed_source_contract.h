// What every FeedSource does, whatever is behind it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "platform/feed_source.h"

namespace brimle {

/// A host to ask, and a way to let a source do its work.
struct FeedHost {
  std::string secure;  ///< the beginning of its https addresses
  std::string plain;   ///< and of its http addresses, where it has the same documents
  std::function<void(const std::string& name, const std::string& bytes)> serve;
  std::function<void(const std::function<bool()>& condition)> waitFor;
};

inline void expectFeedSourceContract(FeedSource& source, const FeedHost& host) {
  const std::string bytes("{\0\xff\r\n}", 6);
  host.serve("document", bytes);
  host.serve("empty", "");
  const struct {
    std::string address;
    std::size_t limit;
    std::optional<std::string> answer;
  } cases[] = {
      {host.secure + "document", 100, bytes},
      {host.secure + "document", bytes.size(), bytes},
      {host.secure + "document", bytes.size() - 1, {}},
      {host.secure + "empty", 0, ""},
      {host.secure + "absent", 100, {}},
      {host.plain + "document", 100, {}},
      {"document", 100, {}},
      {"", 100, {}},
  };
  for (const auto& [address, limit, answer] : cases) {
    std::vector<std::optional<std::string>> answers;
    source.fetch(address, limit, [&](auto got) { answers.push_back(std::move(got)); });
    EXPECT_TRUE(answers.empty()) << address;
    host.waitFor([&] { return !answers.empty(); });
    EXPECT_EQ(answers, std::vector{answer}) << address << " within " << limit;
  }
}

}  // namespace brimle
