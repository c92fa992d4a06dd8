// The answer of a command, on its way to standard output.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace kw::tool {

// Collects text and writes it in large pieces.
class Output {
 public:
  // `to` may be null: everything is then kept, for view().
  explicit Output(std::FILE* to = nullptr) : to_(to) {}
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  Output& operator<<(std::string_view text) {
    buffer_ += text;
    if (buffer_.size() >= kPiece) drain();
    return *this;
  }
  Output& operator<<(std::u16string_view text);

  // Writes what is left. Fails (exit status 3) when the answer cannot be written.
  void flush();
  std::string_view view() const noexcept { return buffer_; }

 private:
  static constexpr std::size_t kPiece = 64 * 1024;

  void drain();

  std::FILE* to_;
  std::string buffer_;
};

}  // namespace kw::tool
