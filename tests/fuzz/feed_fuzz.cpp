// The update feed and its signature: the last line of the input is the signature, or the key, or a version;
// what stands before it is the document.
#include "updates/feed.h"

#include <sodium.h>

#include "base/text.h"
#include "input.h"
#include "model/json_writer.h"
#include "require.h"
#include "updates/signature.h"

namespace brimle {
namespace {

template <std::size_t size>
std::string base64(const std::array<unsigned char, size>& bytes) {
  std::string text(sodium_base64_ENCODED_LEN(size, sodium_base64_VARIANT_ORIGINAL), '\0');
  sodium_bin2base64(text.data(), text.size(), bytes.data(), size, sodium_base64_VARIANT_ORIGINAL);
  text.pop_back();
  return text;
}

/// The maintainer's key pair, the same in every run.
class Signer {
 public:
  Signer() {
    const std::array<unsigned char, crypto_sign_SEEDBYTES> seed{};
    require(sodium_init() >= 0, "libsodium is there");
    crypto_sign_seed_keypair(public_.data(), secret_.data(), seed.data());
  }

  std::string publicKey() const { return base64(public_); }
  std::string sign(std::string_view document) const {
    std::array<unsigned char, crypto_sign_BYTES> signature;
    crypto_sign_detached(signature.data(), nullptr, reinterpret_cast<const unsigned char*>(document.data()),
                         document.size(), secret_.data());
    return base64(signature);
  }

 private:
  std::array<unsigned char, crypto_sign_PUBLICKEYBYTES> public_;
  std::array<unsigned char, crypto_sign_SECRETKEYBYTES> secret_;
};

void checkSignature(std::string_view document, std::string_view last) {
  static const Signer signer;
  const std::string key = signer.publicKey();
  const std::string genuine = signer.sign(document);
  const bool isGenuine = last.size() <= kLongestSignature && trimmedLines(last) == genuine;
  require(isSigned(document, last, key) == isGenuine, "only the signature that was made is right");
  require(isSigned(document, genuine, last) == (last == key), "only the key that it was made with is right");
  require(isSigned(document, " " + genuine + "\r\n", key), "line endings and blanks around it do not count");
  require(!isSigned(std::string(document) + '\n', genuine, key), "it is right for these bytes alone");
}

bool isPrintable(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c > ' ' && c <= '~'; });
}

void checkFeed(std::string_view document) {
  const auto feed = parseFeed(document);
  require(document.size() <= kLongestFeed || !feed, "no feed is longer than allowed");
  if (!feed) return;
  require(feed->date.ok(), "its date is a day");
  require(feed->notes.size() <= 8 * 1024 && isValidUtf8(feed->notes),
          "its notes are a text of bounded length");
  require(trimmedLines(feed->notes) == feed->notes, "its notes have no blank ends");
  require(feed->address.size() <= 2 * 1024 && isPrintable(feed->address), "its address is plain and bounded");
  require(feed->address.starts_with("https://") && feed->address.size() > 8, "its address is secure");

  std::string again = R"({"later":[1,{"version":2}],"version":)";
  json::appendString(again, feed->version.string());
  json::appendString(again += R"(,"date":)", dayKey(feed->date));
  json::appendString(again += R"(,"notes":)", feed->notes);
  json::appendString(again += R"(,"address":)", feed->address);
  require(parseFeed(again + "}") == feed, "a feed reads as what was written");
  require(!parseFeed(again + R"(,"date":"2026-06-15"})"), "a key twice is an error");
}

void checkVersion(std::string_view text) {
  const auto version = Version::parse(text);
  if (version) require(version->string() == text, "a version has one form");
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
  checkVersion(last);
  return 0;
}
