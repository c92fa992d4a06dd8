// Writes trimmed lines to a file, 1 MiB at a time.
#pragma once

#include <cstddef>
#include <cstring>
#include <filesystem>
#include <memory>

#include "line_words.h"

namespace kw::bench {

class TrimmedWriter {
 public:
  // Makes the file, or empties it. Throws std::system_error when it cannot, as the others do.
  explicit TrimmedWriter(const std::filesystem::path& path);
  ~TrimmedWriter();
  TrimmedWriter(const TrimmedWriter&) = delete;
  TrimmedWriter& operator=(const TrimmedWriter&) = delete;

  // Adds the line and CR LF.
  void write(const Line& line) {
    const auto length = static_cast<std::size_t>(line.end - line.begin);
    if (length + 2 > kBuffer - used_) return write_slowly(line.begin, length);
    std::memcpy(buffer_.get() + used_, line.begin, length);
    std::memcpy(buffer_.get() + used_ + length, "\r\n", 2);
    used_ += length + 2;
  }

  // Writes what is left, waits for the disk if `flush`, and closes the file.
  void finish(bool flush);

 private:
  void write_slowly(const char* text, std::size_t length);
  void write_out(const char* text, std::size_t length);
  void empty();

  static constexpr std::size_t kBuffer = std::size_t{1} << 20;
  int file_;
  std::unique_ptr<char[]> buffer_;
  std::size_t used_ = 0;
};

}  // namespace kw::bench
