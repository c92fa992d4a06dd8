// Takes values off the bytes that a fuzzer supplies.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace kw::fuzz {

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : bytes_(reinterpret_cast<const char*>(data), size) {}

  bool empty() const { return bytes_.empty(); }
  std::uint8_t byte() {
    if (bytes_.empty()) return 0;
    const auto result = static_cast<std::uint8_t>(bytes_.front());
    bytes_.remove_prefix(1);
    return result;
  }
  // At most 255 bytes.
  std::string_view text() {
    const std::size_t length = byte();
    const std::string_view result = bytes_.substr(0, length);
    bytes_.remove_prefix(std::min(result.size(), bytes_.size()));
    return result;
  }
  template <class T>
  T number() {
    T result = {};
    const std::size_t size = std::min(sizeof(T), bytes_.size());
    std::memcpy(&result, bytes_.data(), size);
    bytes_.remove_prefix(size);
    return result;
  }
  std::string_view rest() const { return bytes_; }

 private:
  std::string_view bytes_;
};

}  // namespace kw::fuzz
