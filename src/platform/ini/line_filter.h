// Finds the few lines of an INI file that are worth a look.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/ini/ini_line.h"

namespace kw::ini {

// Passes over the lines that can neither be a header nor begin with the name sought, many bytes at
// a time. Nearly all lines of a file fall here.
template <class C>
class LineFilter;

template <>
class LineFilter<char> {
 public:
  // Lets headers pass only.
  LineFilter() noexcept : LineFilter("[") {}
  // Lets headers pass and lines that may hold an entry of that name, which is kept as a view.
  explicit LineFilter(std::string_view name) noexcept;

  // Where the next line that passes begins, at `from` (the beginning of a line) or later; the size
  // of `text` when there is none. A line that passes is no more than worth a look.
  std::size_t next(std::string_view text, std::size_t from) const noexcept;

 private:
  // The two cases of one character of the name.
  struct Letter {
    explicit Letter(char byte) noexcept;
    bool is(char byte) const noexcept { return byte == upper || byte == lower; }
    char upper;
    char lower;
  };
  bool passes(std::string_view text, std::size_t begin) const noexcept;
  std::size_t next_in_blocks(std::string_view text, std::size_t& from) const noexcept;

  std::string_view name_;
  Letter first_;
  Letter last_;
};

// UTF-16 files are rare and small: every line passes that is not empty.
template <>
class LineFilter<char16_t> {
 public:
  LineFilter() noexcept = default;
  explicit LineFilter(std::u16string_view) noexcept {}
  std::size_t next(std::u16string_view text, std::size_t from) const noexcept {
    while (from < text.size() && is_line_end(text[from])) from = line_at(text, from).next;
    return from;
  }
};

}  // namespace kw::ini
