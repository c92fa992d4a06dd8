#include "store/sought_value.h"

#include <algorithm>

#include "base/case_map.h"
#include "base/code_page.h"

namespace kw::store {

namespace {

struct Spellings {
  unsigned common = 0xFF;  // bits set in all of them
  unsigned any = 0;        // bits set in one of them
};

Spellings spellings(char16_t folded) {
  Spellings found;
  for (unsigned byte = 0; byte < 256; ++byte) {
    if (fold_byte(static_cast<unsigned char>(byte)) != folded) continue;
    found.common &= byte;
    found.any |= byte;
  }
  return found;
}

}  // namespace

SoughtValue::SoughtValue(std::u16string_view in_apostrophes) {
  const std::size_t size = in_apostrophes.size();
  exists_ = size >= 2 && in_apostrophes.front() == u'\'' && in_apostrophes.back() == u'\'';
  if (!exists_) return;
  folded_ = upper(in_apostrophes.substr(1, size - 2));
  for (std::size_t at = 0; at < std::min<std::size_t>(folded_.size(), 8); ++at) {
    const Spellings all = spellings(folded_[at]);
    const std::uint64_t mask = ~(all.common ^ all.any) & 0xFF;
    common_mask_ |= mask << 8 * at;
    common_bits_ |= (all.common & mask) << 8 * at;
  }
}

bool SoughtValue::equals(std::string_view value) const noexcept {
  if (!exists_ || value.size() != folded_.size()) return false;
  for (std::size_t at = 0; at < value.size(); ++at)
    if (fold_byte(static_cast<unsigned char>(value[at])) != folded_[at]) return false;
  return true;
}

}  // namespace kw::store
