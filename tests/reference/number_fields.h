// The filters of clsDataEdtUtils, step by step.
#pragma once

#include <cstdint>
#include <string>

#include "reference/basic_text.h"

namespace kw::reference {

inline std::int16_t check_number(std::int16_t code, std::int16_t positive,
                                 const std::u16string& tmp, std::int16_t max_length,
                                 std::int16_t selected, bool real) {
  if (code == 45 && (positive != 0 || in_str(tmp, std::u16string(u"-")) > 0)) code = 0;
  if (code == 46 && (!real || in_str(tmp, std::u16string(u".")) > 0)) code = 0;
  if (!((code >= 48 && code <= 59) || code == 8 || code == 46 || code == 45)) code = 0;
  const bool room = static_cast<int>(tmp.size()) < max_length || code == 8 || selected != 0;
  return room ? code : std::int16_t{0};
}

inline std::u16string check_real_change(std::u16string s) {
  const std::size_t minus = in_str(s, std::u16string(u"-"));
  if (minus > 0) {
    s = trim(s);
    const std::size_t at = in_str(s, std::u16string(u"-"));
    if (at != 1) s = u"-" + left(s, at - 1) + mid(s, at + 1);
  }
  if (left(s, 1) != u"-") {
    if (s.size() >= 2 && left(s, 1) == u"0" && mid(s, 2, 1) != u".") s = mid(s, 2);
  }
  if (left(s, 1) == u"-") {
    if (s.size() > 2 && left(s, 2) == u"-0" && mid(s, 3, 1) != u".") s = u"-" + mid(s, 3);
  }
  return s;
}

}  // namespace kw::reference
