#include "updates/signature.h"

#include <sodium.h>

#include <array>
#include <optional>

#include "base/text.h"

namespace brimle {
namespace {

template <std::size_t size>
std::optional<std::array<unsigned char, size>> decoded(std::string_view base64) {
  std::array<unsigned char, size> bytes;
  std::size_t length = 0;
  const int result = sodium_base642bin(bytes.data(), size, base64.data(), base64.size(), nullptr, &length,
                                       nullptr, sodium_base64_VARIANT_ORIGINAL);
  return result == 0 && length == size ? std::optional(bytes) : std::nullopt;
}

}  // namespace

bool isSigned(std::string_view document, std::string_view signature, std::string_view key) {
  if (signature.size() > kLongestSignature || sodium_init() < 0) return false;
  const auto signatureBytes = decoded<crypto_sign_BYTES>(trimmedLines(signature));
  const auto keyBytes = decoded<crypto_sign_PUBLICKEYBYTES>(key);
  if (!signatureBytes || !keyBytes) return false;
  const auto* message = reinterpret_cast<const unsigned char*>(document.data());
  return crypto_sign_verify_detached(signatureBytes->data(), message, document.size(), keyBytes->data()) == 0;
}

}  // namespace brimle
