#include "frame/member_names.h"

#include <type_traits>

namespace kw::frame {
namespace {

// Published names are ASCII, so that is all the case there is to fold.
template <class C>
constexpr std::uint32_t folded(C c) {
  const auto code = static_cast<std::uint32_t>(static_cast<std::make_unsigned_t<C>>(c));
  return code - u'A' < 26u ? code | 0x20u : code;
}

template <class C>
std::uint32_t hash_of(std::basic_string_view<C> name, std::uint32_t seed) noexcept {
  std::uint32_t hash = seed;
  for (const C c : name) hash = (hash ^ folded(c)) * 0x01000193u;
  return hash ^ (hash >> 15);
}

}  // namespace

bool same_name(std::u16string_view given, std::string_view published) noexcept {
  if (given.size() != published.size()) return false;
  for (std::size_t i = 0; i < given.size(); ++i)
    if (folded(given[i]) != folded(published[i])) return false;
  return true;
}

MemberNames::MemberNames(const std::vector<std::string_view>& names) : names_(names) {
  std::size_t size = 4;
  while (size < names_.size() * 4) size *= 2;
  for (;; size *= 2) {
    for (seed_ = 1; seed_ < 1000; ++seed_) {
      places_.assign(size, 0);
      if (place_all(seed_)) return;
    }
  }
}

bool MemberNames::place_all(std::uint32_t seed) {
  for (std::size_t i = 0; i < names_.size(); ++i) {
    std::uint16_t& place = places_[hash_of(names_[i], seed) & (places_.size() - 1)];
    if (place != 0) return false;
    place = static_cast<std::uint16_t>(i + 1);
  }
  return true;
}

std::size_t MemberNames::find(std::u16string_view name) const noexcept {
  const std::uint16_t place = places_[hash_of(name, seed_) & (places_.size() - 1)];
  if (place == 0 || !same_name(name, names_[place - 1])) return kUnknown;
  return place - 1u;
}

}  // namespace kw::frame
