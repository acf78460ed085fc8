// A maintainer with a key pair of its own, who writes feeds and signs them.
#pragma once

#include <sodium.h>

#include <array>
#include <string>
#include <string_view>

namespace brimle {

class FeedSigner {
 public:
  FeedSigner() { crypto_sign_keypair(public_.data(), secret_.data()); }

  std::string publicKey() const { return base64(public_.data(), public_.size()); }

  std::string sign(std::string_view document) const {
    std::array<unsigned char, crypto_sign_BYTES> signature;
    const auto* bytes = reinterpret_cast<const unsigned char*>(document.data());
    crypto_sign_detached(signature.data(), nullptr, bytes, document.size(), secret_.data());
    return base64(signature.data(), signature.size());
  }

 private:
  static std::string base64(const unsigned char* bytes, std::size_t size) {
    std::string text(sodium_base64_ENCODED_LEN(size, sodium_base64_VARIANT_ORIGINAL), '\0');
    sodium_bin2base64(text.data(), text.size(), bytes, size, sodium_base64_VARIANT_ORIGINAL);
    text.pop_back();  // the terminator that libsodium counts in
    return text;
  }

  std::array<unsigned char, crypto_sign_PUBLICKEYBYTES> public_;
  std::array<unsigned char, crypto_sign_SECRETKEYBYTES> secret_;
};

inline std::string feedOf(std::string_view version) {
  return R"({"version": ")" + std::string(version) +
         R"(", "date": "2026-06-15", "notes": "Faster.", "address": "https://brimle.example/new"})";
}

}  // namespace brimle
