// Lines of a text, step by step.
#pragma once

#include "reference/basic_text.h"

namespace kw::reference {

template <class Char>
Text<Char> parse_record(Text<Char>& buf) {
  const std::size_t p = in_str<Char>(buf + text_of<Char>("\r"), text_of<Char>("\r"));
  const Text<Char> record = left(buf, p - 1);
  buf = ltrim(mid(buf, p + 1));
  if (left(buf, 1) == text_of<Char>("\n")) buf = mid(buf, 2);
  return record;
}

}  // namespace kw::reference
