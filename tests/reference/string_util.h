// The operations of clsStringUtil, step by step: every search starts again at position 1, and some
// positions are held in 16 bits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

#include "kwutils/error.h"
#include "reference/basic_text.h"

namespace kw::reference {

inline std::int16_t int16_position(std::size_t position) {
  if (position > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
    throw Error(ErrorNumber::overflow);
  return static_cast<std::int16_t>(position);
}

// Replaces each `sought` by `by`, holding its position in 16 bits.
inline std::u16string replace_each16(std::u16string text, const std::u16string& sought,
                                     const std::u16string& by) {
  std::int16_t position = int16_position(in_str(text, sought));
  while (position > 0) {
    const auto at = static_cast<std::size_t>(position);
    text = left(text, at - 1) + by + mid(text, at + 1);
    position = int16_position(in_str(text, sought));
  }
  return text;
}

inline std::u16string remove_spaces(const std::u16string& line) {
  return replace_each16(line, u" ", u"");
}

inline std::u16string replace_tabs(const std::u16string& text) {
  return replace_each16(text, u"\t", u" ");
}

inline std::u16string replace_in_path(std::u16string text, const std::u16string& sought,
                                      const std::u16string& by) {
  std::size_t position = in_str(text, sought);
  while (position >= 1) {
    text = left(text, position - 1) + by + mid(text, position + sought.size());
    position = in_str(text, sought);
  }
  return text;
}

inline std::u16string replace_all_occurs(const std::u16string& text, const std::u16string& sought,
                                         const std::u16string& by) {
  return sought.empty() ? text : replace_in_path(text, sought, by);
}

inline std::u16string invert(const std::u16string& text) {
  std::u16string result;
  for (std::size_t at = text.size(); at >= 1; --at) result += mid(text, at, 1);
  return result;
}

inline std::int32_t out_str(const std::u16string& text, const std::u16string& sought) {
  const std::size_t position = in_str(invert(text), invert(sought));
  return position >= 1 ? static_cast<std::int32_t>(text.size() - position + 1) : -1;
}

inline std::u16string str_no_null(const std::u16string& text) {
  const std::int16_t position = int16_position(in_str(text, std::u16string(1, u'\0')));
  return position > 0 ? left(text, static_cast<std::size_t>(position - 1)) : text;
}

}  // namespace kw::reference
