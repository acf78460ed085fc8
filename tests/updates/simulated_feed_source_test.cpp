#include "platform/simulated/simulated_feed_source.h"

#include "updates/feed_source_contract.h"

namespace brimle {
namespace {

TEST(SimulatedFeedSource, KeepsTheContract) {
  SimulatedFeedSource source;
  const auto serve = [&](const std::string& name, const std::string& bytes) {
    for (const char* scheme : {"https://a/", "http://a/"}) source.documents[scheme + name] = bytes;
  };
  expectFeedSourceContract(source,
                           {"https://a/", "http://a/", serve, [&](const auto&) { source.deliverAll(); }});
}

}  // namespace
}  // namespace brimle
