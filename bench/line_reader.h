// The loop that every floor is built on: 1 MiB reads, line ends by vector code, trimmed lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>

#include "line_ends.h"
#include "line_words.h"

namespace kw::bench {

// A file open for reading, 1 MiB at a time. What a caller keeps of one piece is moved in front of
// the next, so that a line that a read cuts in two lies in one piece all the same.
class PieceReader {
 public:
  // Throws std::system_error when the file cannot be opened.
  explicit PieceReader(const std::filesystem::path& path);
  ~PieceReader();
  PieceReader(const PieceReader&) = delete;
  PieceReader& operator=(const PieceReader&) = delete;

  // Reads on, keeping the bytes from `keep` (between begin() and end()) to end(). False when the
  // file has no more: then the piece is what was kept. The byte behind end() may be read; it is 0.
  bool next(const char* keep);

  const char* begin() const { return fresh() - kept_; }        // of what was kept and read
  const char* fresh() const { return buffer_.get() + room_; }  // of what was read
  const char* end() const { return fresh() + read_; }

 private:
  void move_to_front(const char* keep);

  int file_;
  std::size_t room_;  // for what is kept
  std::unique_ptr<char[]> buffer_;
  std::size_t kept_ = 0;
  std::size_t read_ = 0;
};

// Calls use(line) for each line that is not empty, trimmed, in file order. The line's bytes are
// valid during the call. Throws std::system_error when the file cannot be read.
template <class Use>
void for_each_line(const std::filesystem::path& path, Use&& use) {
  // Few enough bytes at a time to be in the first-level cache still when their lines are looked at.
  constexpr std::size_t kSlice = std::size_t{16} << 10;
  const auto ends = std::make_unique_for_overwrite<std::uint32_t[]>(kSlice);
  const LineEndFinder find_ends = best_line_end_finder();
  const auto offer = [&use](const char* from, const char* to) {
    const Line line = look(from, to);
    if (line.begin != line.end) use(line);
  };

  PieceReader reader(path);
  const char* start = reader.end();  // of the line whose end was not found yet
  while (reader.next(start)) {
    start = reader.begin();
    for (const char* slice = reader.fresh(); slice < reader.end(); slice += kSlice) {
      const auto left = static_cast<std::size_t>(reader.end() - slice);
      const bool after_cr = slice != reader.fresh() && slice[-1] == '\r';
      const std::size_t count =
          find_ends(slice, left < kSlice ? left : kSlice, after_cr, ends.get());
      for (std::size_t i = 0; i < count; ++i) {
        const char* end = slice + ends[i];
        offer(start, end);
        start = end + 1 + (end[0] == '\r' && end[1] == '\n');
      }
    }
  }
  offer(reader.begin(), reader.end());
}

}  // namespace kw::bench
