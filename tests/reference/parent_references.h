// References to parent folders, taken out step by step.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "kwutils/error.h"
#include "reference/basic_text.h"
#include "reference/string_util.h"

namespace kw::reference {

// `messages` counts the messages about a reference above the root.
inline std::u16string resolve_parent_references(std::u16string s, int& messages) {
  const std::u16string reference = u"\\..\\";
  std::int16_t pos = int16_position(in_str(s, reference));
  if (pos == 3) ++messages;
  while (pos > 0) {
    int i = pos - 1;
    while (i >= 3 && mid(s, static_cast<std::size_t>(i), 1) != u"\\") i = i - 1;
    if (i - 1 < 0) throw Error(ErrorNumber::invalid_argument);
    s = left(s, static_cast<std::size_t>(i - 1)) + mid(s, static_cast<std::size_t>(pos) + 3);
    pos = int16_position(in_str(s, reference));
  }
  return s;
}

}  // namespace kw::reference
