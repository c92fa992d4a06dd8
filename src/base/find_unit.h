// The first place of one code unit in a text, of 8 or 16 bits.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

#include "base/vector_units.h"

namespace kw {

inline constexpr std::size_t kNotFound = static_cast<std::size_t>(-1);

// The position (from 0) of the first `unit` in `text` at or after `start`, or kNotFound. A start
// past the end finds nothing.
inline std::size_t find_unit(std::string_view text, char unit, std::size_t start = 0) noexcept {
  if (start >= text.size()) return kNotFound;
  const void* found = std::memchr(text.data() + start, unit, text.size() - start);
  if (found == nullptr) return kNotFound;
  return static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

inline std::size_t find_unit(std::u16string_view text, char16_t unit,
                             std::size_t start = 0) noexcept {
  std::size_t at = start;
#if KW_VECTOR_UNITS
  using Block = detail::Block<char16_t>;
  const Block wanted = Block::of(unit);
  for (; at < text.size() && text.size() - at >= Block::kSize; at += Block::kSize) {
    const auto hits = Block::load(text.data() + at).equal(wanted).mask();
    if (!hits.empty()) return at + hits.first();
  }
#endif
  for (; at < text.size(); ++at) {
    if (text[at] == unit) return at;
  }
  return kNotFound;
}

}  // namespace kw
