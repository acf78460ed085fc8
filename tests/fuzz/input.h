// The fuzzer's bytes as parameters, taken from the front. Where none are left the parameters are zero and
// empty, so that every input means something. A target that reads text alone needs none of this.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace brimle {

inline std::string_view asText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

class Input {
 public:
  explicit Input(std::string_view bytes) : rest_(bytes) {}

  std::string_view rest() const { return rest_; }

  std::uint8_t byte() {
    const std::string_view taken = take(1);
    return taken.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(taken.front());
  }
  bool flag() { return byte() % 2 != 0; }
  /// A byte that says how long it is, then the text.
  std::string text() { return std::string(take(byte())); }
  std::string_view line() {
    const std::string_view line = take(std::min(rest_.find('\n'), rest_.size()));
    take(1);
    return line;
  }

  template <class Table>
  const auto& oneOf(const Table& table) {
    return std::data(table)[byte() % std::size(table)];
  }

 private:
  std::string_view take(std::size_t count) {
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  std::string_view rest_;
};

}  // namespace brimle
