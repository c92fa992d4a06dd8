// One item of an entity and the value that it is to have.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "store/sought_value.h"
#include "store/word_bits.h"

namespace kw::store {

// A keyword as it stands in files, and its values. A keyword that the code page lacks stands in
// none.
class Keyword {
 public:
  explicit Keyword(std::u16string_view keyword);

  // The value behind the keyword on a line; empty when the keyword is not there.
  std::string_view value_on(std::string_view line) const noexcept;

  // The keyword, one blank and an apostrophe, which begin the line of most entities; empty where
  // they would not show that the keyword's value follows.
  std::string_view opening() const noexcept { return opening_; }

 private:
  std::string keyword_;
  std::string opening_;
  bool in_page_;
};

class ItemSearch {
 public:
  ItemSearch(std::u16string_view keyword, std::u16string_view value_in_apostrophes);

  // Whether the item has that value on the line. One without the keyword has the value "".
  bool matches(std::string_view line) const noexcept {
    return value_.equals(keyword_.value_on(line));
  }

  // A quick look at the beginning of a line, of which 16 bytes can be read, be they the line's or
  // not: true when the item stands there and surely has another value.
  bool surely_differs(const char* line) const noexcept {
    const bool opens = (load_8(line) & opening_mask_) == opening_bits_;
    return all(opens, !value_.may_begin(line + opening_size_));
  }

 private:
  Keyword keyword_;
  SoughtValue value_;
  std::size_t opening_size_ = 0;
  std::uint64_t opening_bits_ = 1;  // no line shows so under a mask of nothing
  std::uint64_t opening_mask_ = 0;
};

}  // namespace kw::store
