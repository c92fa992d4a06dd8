#include "sort/text_places.h"

#include <new>

namespace kw::sort {

std::int32_t* TextPlaces::ranks() const noexcept {
  auto* const ranks = new (spare()) std::int32_t[count_];
  std::int32_t rank = 0;
  for (std::size_t place = 0; place < count_; ++place) {
    const std::uint32_t position = positions()[place];
    if ((position & kEqualsLast) == 0) ++rank;
    ranks[position & ~kEqualsLast] = rank;
  }
  return ranks;
}

}  // namespace kw::sort
