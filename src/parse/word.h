// Words as callers of the quote-keeping readers see them.
#pragma once

#include <string>
#include <string_view>

#include "parse/item.h"

namespace kw::parse {

// The item in the quotes that stood around it. A view of the item's own text, or of `scratch`.
inline std::u16string_view with_quotes(const Item<char16_t>& item, std::u16string& scratch) {
  if (item.quote == 0) return item.text;
  scratch.assign(1, item.quote);
  scratch += item.text;
  scratch += item.quote;
  return scratch;
}

}  // namespace kw::parse
