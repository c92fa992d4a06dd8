// One item of an entity and the value that it is to have.
#pragma once

#include <string>
#include <string_view>

#include "store/sought_value.h"

namespace kw::store {

// A keyword as it stands in files, and its values. A keyword that the code page lacks stands in
// none.
class Keyword {
 public:
  explicit Keyword(std::u16string_view keyword);

  // The value behind the keyword on a line; empty when the keyword is not there.
  std::string_view value_on(std::string_view line) const noexcept;

  // What follows the keyword and an opening apostrophe where they begin the line, as they do in
  // most entities; else nothing (a null view).
  std::string_view behind_opening(std::string_view line) const noexcept;

 private:
  std::string keyword_;
  std::string opening_;  // keyword, blank, apostrophe; empty where that says nothing
  bool in_page_;
};

class ItemSearch {
 public:
  ItemSearch(std::u16string_view keyword, std::u16string_view value_in_apostrophes)
      : keyword_(keyword), value_(value_in_apostrophes) {}

  // Whether the item has that value on the line. One without the keyword has the value "".
  bool matches(std::string_view line) const noexcept;

 private:
  Keyword keyword_;
  SoughtValue value_;
};

}  // namespace kw::store
