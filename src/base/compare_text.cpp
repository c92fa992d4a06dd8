#include "base/compare_text.h"

#include <algorithm>

#include "base/case_map.h"
#include "base/code_units.h"

namespace kw {
namespace {

using detail::kLanes;

struct Exact {
  static char16_t fold(char16_t unit) noexcept { return unit; }
  static bool same(const char16_t* left, const char16_t* right) noexcept {
    return detail::load_units(left) == detail::load_units(right);
  }
};

struct Folded {
  static char16_t fold(char16_t unit) noexcept { return to_upper(unit); }
  static bool same(const char16_t* left, const char16_t* right) noexcept {
    const std::uint64_t a = detail::load_units(left);
    const std::uint64_t b = detail::load_units(right);
    if (a == b) return true;
    if (detail::is_ascii(a | b)) return detail::upper_ascii(a) == detail::upper_ascii(b);
    return std::equal(left, left + kLanes, right,
                      [](char16_t x, char16_t y) { return to_upper(x) == to_upper(y); });
  }
};

// The first position below `size` at which the two differ; `size` when there is none.
template <class How>
std::size_t mismatch(const char16_t* left, const char16_t* right, std::size_t size) noexcept {
  std::size_t at = 0;
  while (size - at >= kLanes && How::same(left + at, right + at)) at += kLanes;
  while (at < size && How::fold(left[at]) == How::fold(right[at])) ++at;
  return at;
}

template <class Value>
int order(Value left, Value right) noexcept {
  return left < right ? -1 : (left > right ? 1 : 0);
}

template <class How>
int compare(std::u16string_view left, std::u16string_view right) noexcept {
  const std::size_t size = std::min(left.size(), right.size());
  const std::size_t at = mismatch<How>(left.data(), right.data(), size);
  if (at == size) return order(left.size(), right.size());
  return order(How::fold(left[at]), How::fold(right[at]));
}

std::uint64_t fold_word(std::uint64_t word) noexcept {
  if (detail::is_ascii(word)) return detail::upper_ascii(word);
  char16_t units[kLanes];
  detail::store_units(units, word);
  for (char16_t& unit : units) unit = to_upper(unit);
  return detail::load_units(units);
}

// One step of a multiplicative hash; the shift brings the high bits, which depend on everything
// below them, down to where the next product spreads them again.
std::uint64_t mix(std::uint64_t hash, std::uint64_t word) noexcept {
  hash = (hash ^ word) * 0x9E37'79B9'7F4A'7C15;
  return hash ^ (hash >> 32);
}

}  // namespace

int compare_binary(std::u16string_view left, std::u16string_view right) noexcept {
  return compare<Exact>(left, right);
}

int compare_text(std::u16string_view left, std::u16string_view right) noexcept {
  return compare<Folded>(left, right);
}

bool equal_text(std::u16string_view left, std::u16string_view right) noexcept {
  if (left.size() != right.size()) return false;
  return mismatch<Folded>(left.data(), right.data(), left.size()) == left.size();
}

std::size_t hash_text(std::u16string_view text) noexcept {
  std::uint64_t hash = mix(0, text.size());
  while (text.size() >= kLanes) {
    hash = mix(hash, fold_word(detail::load_units(text.data())));
    text.remove_prefix(kLanes);
  }
  char16_t rest[kLanes] = {};
  std::copy(text.begin(), text.end(), rest);
  hash = mix(hash, fold_word(detail::load_units(rest)));
  return static_cast<std::size_t>(mix(hash, 0));
}

}  // namespace kw
