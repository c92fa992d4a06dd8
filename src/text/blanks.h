// Blanks around a text. A blank is character 32 and nothing else.
#pragma once

#include <string_view>

namespace kw::text {

inline std::u16string_view without_blanks_around(std::u16string_view text) noexcept {
  while (!text.empty() && text.front() == u' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == u' ') text.remove_suffix(1);
  return text;
}

}  // namespace kw::text
