// What the sorts are measured against: each method as one writes it down from its description, with
// care for speed but without the library's own means.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/case_map.h"

namespace kw::bench {

template <class T>
using SortKey = std::conditional_t<sizeof(T) == 8, std::uint64_t, std::uint32_t>;

template <class T>
SortKey<T> sort_key(T number) {
  constexpr int kSign = static_cast<int>(8 * sizeof(T)) - 1;
  const auto bits = std::bit_cast<SortKey<T>>(number);
  if constexpr (std::is_floating_point_v<T>)
    return bits ^ ((0 - (bits >> kSign)) | SortKey<T>{1} << kSign);
  else
    return bits ^ SortKey<T>{1} << kSign;
}

template <class T>
T number_of(SortKey<T> key) {
  constexpr int kSign = static_cast<int>(8 * sizeof(T)) - 1;
  if constexpr (std::is_floating_point_v<T>)
    return std::bit_cast<T>(key ^ (((key >> kSign) - 1) | SortKey<T>{1} << kSign));
  else
    return std::bit_cast<T>(key ^ SortKey<T>{1} << kSign);
}

// Least significant digit first, eleven bits at a time, all digits counted in one pass.
template <class T>
void radix_sort(T* numbers, std::size_t count) {
  constexpr int kBits = 11;
  constexpr std::size_t kValues = std::size_t{1} << kBits;
  constexpr std::size_t kDigits = (8 * sizeof(T) + kBits - 1) / kBits;
  const auto digit = [](SortKey<T> key, std::size_t d) {
    return static_cast<std::size_t>(key >> (d * kBits)) & (kValues - 1);
  };
  std::unique_ptr<SortKey<T>[]> from(new SortKey<T>[count]), to(new SortKey<T>[count]);
  std::array<std::array<std::uint32_t, kValues>, kDigits> counts = {};
  for (std::size_t k = 0; k < count; ++k) {
    from[k] = sort_key(numbers[k]);
    for (std::size_t d = 0; d < kDigits; ++d) ++counts[d][digit(from[k], d)];
  }
  for (std::size_t d = 0; d < kDigits; ++d) {
    std::uint32_t position = 0;
    for (std::uint32_t& value : counts[d]) position += std::exchange(value, position);
    for (std::size_t k = 0; k < count; ++k) to[counts[d][digit(from[k], d)]++] = from[k];
    from.swap(to);
  }
  for (std::size_t k = 0; k < count; ++k) numbers[k] = number_of<T>(from[k]);
}

inline void counting_sort(std::int16_t* numbers, std::size_t count) {
  std::vector<std::uint32_t> counts(65536);
  for (std::size_t k = 0; k < count; ++k) ++counts[static_cast<std::size_t>(numbers[k] + 32768)];
  for (std::size_t value = 0; value < counts.size(); ++value)
    numbers = std::fill_n(numbers, counts[value],
                          static_cast<std::int16_t>(static_cast<int>(value) - 32768));
}

// The partition scheme, one comparison after the other. `order` may be null.
template <class T, class Before>
void literal_scheme(T* values, std::int32_t* order, std::int32_t count, Before before) {
  std::vector<std::pair<std::int32_t, std::int32_t>> pending = {{0, count - 1}};
  while (!pending.empty()) {
    auto [lo, hi] = pending.back();
    pending.pop_back();
    do {
      std::int32_t i = lo;
      std::int32_t j = hi;
      const T pivot = values[(lo + hi) / 2];
      do {
        while (before(values[i], pivot)) ++i;
        while (before(pivot, values[j])) --j;
        if (i > j) break;
        std::swap(values[i], values[j]);
        if (order != nullptr) std::swap(order[i], order[j]);
        ++i;
        --j;
      } while (i <= j);
      if (j - lo < hi - i) {
        if (i < hi) pending.emplace_back(i, hi);
        hi = j;
      } else {
        if (lo < j) pending.emplace_back(lo, j);
        lo = i;
      }
    } while (lo < hi);
  }
}

// Less than 0, 0 or more, without regard to case: both sides folded, unit by unit, in a table.
inline int compare_folded(std::u16string_view a, std::u16string_view b) {
  static const std::vector<char16_t> table = [] {
    std::vector<char16_t> upper(65536);
    for (std::size_t unit = 0; unit < upper.size(); ++unit)
      upper[unit] = to_upper(static_cast<char16_t>(unit));
    return upper;
  }();
  const char16_t* const fold = table.data();
  const std::size_t size = std::min(a.size(), b.size());
  for (std::size_t k = 0; k < size; ++k)
    if (const int difference = fold[a[k]] - fold[b[k]]; difference != 0) return difference;
  return static_cast<int>(a.size()) - static_cast<int>(b.size());
}

// Multikey quicksort; four code units of each text are kept beside it, and renewed where a range of
// equal ones remains. TextOf gives the text of an item.
template <class Item, class TextOf>
class CachedMultikey {
 public:
  static void sort(Item* items, std::size_t count, TextOf text_of) {
    const CachedMultikey self{text_of};
    std::vector<Entry> entries(count);
    for (std::size_t k = 0; k < count; ++k) entries[k] = {self.units(items[k], 0), items[k]};
    self.sort_range(entries.data(), count, 0);
    for (std::size_t k = 0; k < count; ++k) items[k] = entries[k].item;
  }

 private:
  struct Entry {
    std::uint64_t units;
    Item item;
  };

  explicit CachedMultikey(TextOf text_of) : text_of_(text_of) {}

  std::u16string_view rest(Item item, std::size_t depth) const {
    const std::u16string_view text = text_of_(item);
    return text.substr(std::min(depth, text.size()));
  }
  std::uint64_t units(Item item, std::size_t depth) const {
    const std::u16string_view text = rest(item, depth);
    std::uint64_t units = 0;
    for (std::size_t k = 0; k < 4; ++k) units = units << 16 | (k < text.size() ? text[k] : 0u);
    return units;
  }
  bool before(const Entry& a, const Entry& b, std::size_t depth) const {
    return a.units != b.units ? a.units < b.units : rest(a.item, depth) < rest(b.item, depth);
  }
  void insertion_sort(Entry* entries, std::size_t count, std::size_t depth) const {
    for (std::size_t k = 1; k < count; ++k) {
      const Entry entry = entries[k];
      std::size_t at = k;
      for (; at > 0 && before(entry, entries[at - 1], depth); --at) entries[at] = entries[at - 1];
      entries[at] = entry;
    }
  }
  void sort_range(Entry* entries, std::size_t count, std::size_t depth) const {
    while (count > 16) {
      const std::uint64_t pivot =
          middle(entries[count / 4].units, entries[count / 2].units, entries[count / 4 * 3].units);
      std::size_t less = 0, at = 0, more = count;
      while (at < more) {
        if (entries[at].units < pivot)
          std::swap(entries[at++], entries[less++]);
        else if (entries[at].units > pivot)
          std::swap(entries[at], entries[--more]);
        else
          ++at;
      }
      sort_range(entries, less, depth);
      sort_range(entries + more, count - more, depth);
      entries += less;
      count = more - less;
      if ((pivot & 0xFFFF) == 0)
        return std::sort(entries, entries + count, [this, depth](const Entry& a, const Entry& b) {
          return before(a, b, depth);
        });
      depth += 4;
      for (std::size_t k = 0; k < count; ++k) entries[k].units = units(entries[k].item, depth);
    }
    insertion_sort(entries, count, depth);
  }
  static std::uint64_t middle(std::uint64_t a, std::uint64_t b, std::uint64_t c) {
    return std::max(std::min(a, b), std::min(std::max(a, b), c));
  }

  TextOf text_of_;
};

}  // namespace kw::bench
