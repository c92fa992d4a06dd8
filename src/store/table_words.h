// The words around a table, and a quick look for them.
#pragma once

#include <cstddef>
#include <string_view>

#include "base/vector_units.h"

namespace kw::store {

inline constexpr std::string_view kTableOpener = "TBLE";
inline constexpr std::string_view kTableCloser = "tble";

// False when the record surely holds neither: for rows of numbers one pass in the place of two.
inline bool may_hold_table_word([[maybe_unused]] std::string_view record) noexcept {
#if KW_VECTOR_UNITS
  using Block = kw::detail::Block<char>;
  constexpr std::size_t kLast = kTableOpener.size() - 1;
  constexpr std::size_t kReach = Block::kSize + kLast;
  if (record.size() < kReach) return true;
  const auto hit = [&](std::size_t at) {
    const Block first = Block::load(record.data() + at);
    const Block last = Block::load(record.data() + at + kLast);
    const Block opener = first.equal(Block::of('T')) & last.equal(Block::of('E'));
    const Block closer = first.equal(Block::of('t')) & last.equal(Block::of('e'));
    return !opener.mask().empty() || !closer.mask().empty();
  };
  for (std::size_t at = 0; at + kReach <= record.size(); at += Block::kSize)
    if (hit(at)) return true;
  return hit(record.size() - kReach);
#else
  return true;
#endif
}

}  // namespace kw::store
