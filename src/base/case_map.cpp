#include "base/case_map.h"

#include "base/code_units.h"

namespace kw {
namespace {

using Units = std::uint64_t (*)(std::uint64_t) noexcept;
using Unit = char16_t (*)(char16_t) noexcept;

// Words of four ASCII code units are mapped whole, all others by the table.
template <Units map_ascii, Unit map_unit>
void map_in_place(std::span<char16_t> text) noexcept {
  char16_t* unit = text.data();
  char16_t* const end = unit + text.size();
  while (end - unit >= static_cast<std::ptrdiff_t>(detail::kLanes)) {
    const std::uint64_t word = detail::load_units(unit);
    if (detail::is_ascii(word)) {
      detail::store_units(unit, map_ascii(word));
      unit += detail::kLanes;
    } else {
      for (std::size_t lane = 0; lane < detail::kLanes; ++lane, ++unit) *unit = map_unit(*unit);
    }
  }
  for (; unit != end; ++unit) *unit = map_unit(*unit);
}

}  // namespace

void make_upper(std::span<char16_t> text) noexcept {
  map_in_place<detail::upper_ascii, to_upper>(text);
}

void make_lower(std::span<char16_t> text) noexcept {
  map_in_place<detail::lower_ascii, to_lower>(text);
}

std::u16string upper(std::u16string_view text) {
  std::u16string result(text);
  make_upper(result);
  return result;
}

std::u16string lower(std::u16string_view text) {
  std::u16string result(text);
  make_lower(result);
  return result;
}

}  // namespace kw
