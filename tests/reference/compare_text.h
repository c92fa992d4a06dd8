// Comparison as text, one code unit after the other.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "base/case_map.h"

namespace kw::reference {

inline int compare_text(std::u16string_view left, std::u16string_view right) {
  for (std::size_t at = 0; at < std::min(left.size(), right.size()); ++at) {
    const char16_t a = to_upper(left[at]);
    const char16_t b = to_upper(right[at]);
    if (a != b) return a < b ? -1 : 1;
  }
  if (left.size() == right.size()) return 0;
  return left.size() < right.size() ? -1 : 1;
}

}  // namespace kw::reference
