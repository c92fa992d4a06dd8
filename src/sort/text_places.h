// TextPlaces: the order of many texts, found without moving them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <string_view>

#include "base/case_map.h"
#include "sort/compare.h"
#include "sort/multikey_sort.h"
#include "sort/work_array.h"

namespace kw::sort {

struct KeepCase {
  char16_t operator()(char16_t unit) const noexcept { return unit; }
};
struct FoldCase {
  char16_t operator()(char16_t unit) const noexcept { return to_upper(unit); }
};

// Marks a position whose text equals the one that is sorted before it.
inline constexpr std::uint32_t kEqualsLast = 0x8000'0000;

// Texts by their positions, for a MultikeySort.
template <class Reader, class Element, class Fold>
struct PositionSource {
  using Item = std::uint32_t;

  const Element* texts;
  bool any_equal = false;

  std::u16string_view text(Item position) const { return Reader::text(texts[position]); }
  char16_t fold(char16_t unit) const { return Fold{}(unit); }
  void equal(Item* positions, std::size_t count) {
    any_equal = true;
    for (std::size_t k = 1; k < count; ++k) positions[k] |= kEqualsLast;
  }
};

// What the scheme does to texts depends on how they order and which of them are equal, and on
// nothing else. Ranks, numbers that order and equal like the texts, go the same ways and are
// compared much faster.
class TextPlaces {
 public:
  // For fewer than 2^31 texts.
  explicit TextPlaces(std::size_t count)
      : count_(count), memory_(count * (sizeof(double) + sizeof(std::uint32_t))) {}

  // False when there was no memory; nothing can be asked for then.
  explicit operator bool() const noexcept { return static_cast<bool>(memory_); }

  // Sorts the texts. To be called once, first.
  template <class Reader, class Element>
  void find(const Element* texts, CompareMethod method) {
    if (method == CompareMethod::binary)
      find_folded<Reader, KeepCase>(texts);
    else
      find_folded<Reader, FoldCase>(texts);
  }

  // Whether no text equals another.
  bool distinct() const noexcept { return distinct_; }
  // When they are distinct: the position of the text that comes `place`-th, from 0.
  std::size_t position(std::size_t place) const noexcept { return positions()[place]; }
  // Room for a number, a pointer or an index of each text.
  void* spare() const noexcept { return memory_.data(); }
  // The rank of each text, in their own order; they lie in the spare room.
  std::int32_t* ranks() const noexcept;

 private:
  std::uint32_t* positions() const noexcept {
    return reinterpret_cast<std::uint32_t*>(memory_.data() + count_ * sizeof(double));
  }

  template <class Reader, class Fold, class Element>
  void find_folded(const Element* texts) {
    for (std::size_t k = 0; k < count_; ++k) positions()[k] = static_cast<std::uint32_t>(k);
    PositionSource<Reader, Element, Fold> source{texts};
    double* const windows = new (memory_.data()) double[count_];
    MultikeySort(source, positions(), windows).run(count_);
    distinct_ = !source.any_equal;
  }

  std::size_t count_;
  WorkArray<std::byte> memory_;
  bool distinct_ = true;
};

}  // namespace kw::sort
