// The update feed and its signature: the last line of the input is the signature, or the key, or a version;
// what stands before it is the document.
#include "updates/feed.h"

#include "../updates/feed_signer.h"
#include "model/json_writer.h"
#include "target.h"
#include "updates/signature.h"

namespace brimle {
namespace {

void checkSignature(std::string_view document, std::string_view last) {
  static const FeedSigner signer;
  const std::string key = signer.publicKey();
  const std::string genuine = signer.sign(document);
  const bool isGenuine = last.size() <= kLongestSignature && trimmedLines(last) == genuine;
  require(isSigned(document, last, key) == isGenuine, "only the signature that was made is right");
  require(isSigned(document, genuine, last) == (last == key), "only the key that it was made with is right");
  require(isSigned(document, " " + genuine + "\r\n", key), "line endings and blanks around it do not count");
  require(!isSigned(std::string(document) + '\n', genuine, key), "it is right for these bytes alone");
}

void checkFeed(std::string_view document) {
  const auto feed = parseFeed(document);
  require(document.size() <= kLongestFeed || !feed, "no feed is longer than allowed");
  if (!feed) return;
  require(feed->notes.size() <= 8 * 1024 && isValidUtf8(feed->notes),
          "its notes are a text of bounded length");
  require(feed->address.starts_with("https://") && feed->address.size() <= 2 * 1024,
          "its address is secure and bounded");
  require(std::ranges::all_of(feed->address, [](char c) { return c > ' ' && c <= '~'; }), "and plain");

  std::string again = R"({"later":[1,{"version":2}],"version":)";
  json::appendString(again, feed->version.string());
  json::appendString(again += R"(,"date":)", dayKey(feed->date));
  json::appendString(again += R"(,"notes":)", feed->notes);
  json::appendString(again += R"(,"address":)", feed->address);
  require(parseFeed(again + "}") == feed, "a feed reads as what was written");
  require(!parseFeed(again + R"(,"date":"2026-06-15"})"), "a key twice is an error");
}

}  // namespace
}  // namespace brimle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brimle;
  const auto bytes = asText(data, size);
  const std::size_t end = std::min(bytes.rfind('\n'), bytes.size());
  const std::string_view document = bytes.substr(0, end);
  const std::string_view last = bytes.substr(std::min(end + 1, bytes.size()));
  checkFeed(document);
  checkSignature(document, last);
  const auto version = Version::parse(last);
  require(!version || version->string() == last, "a version has one form");
  return 0;
}
