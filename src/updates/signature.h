// Detached Ed25519 signatures (RFC 8032), with keys and signatures in base64 (RFC 4648, padded).
// Example: the key "11qYAYKxCrfVS/7TyWQHOg7hcvPapiMlrwIaaPcHURo=".
#pragma once

#include <cstddef>
#include <string_view>

namespace brimle {

/// No signature is longer than this many bytes: 88 in base64, and a line ending or two.
inline constexpr std::size_t kLongestSignature = 128;

/// True where `signature` was made over exactly these bytes with the private half of `key`. Line endings and
/// blanks around the signature do not count. A key or signature of another form is never right.
bool isSigned(std::string_view document, std::string_view signature, std::string_view key);

}  // namespace brimle
