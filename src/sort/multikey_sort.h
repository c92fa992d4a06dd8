// Multikey quicksort: sorts texts by a few of their characters at a time.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "sort/compare.h"
#include "sort/partition.h"
#include "sort/pending_ranges.h"
#include "sort/quick_numbers.h"
#include "sort/rows.h"
#include "sort/small_rows.h"
#include "sort/text_window.h"

namespace kw::sort {

// Sorts `count` items by their texts, ascending; which of equal ones comes first is not defined.
// `windows` is working memory for as many numbers.
//
// A Source tells what the items are:
//   using Item = ...;                             // a trivial type
//   std::u16string_view text(Item) const;
//   char16_t fold(char16_t) const;                // texts order by folded characters
//   void equal(Item* items, std::size_t count);   // called for items of equal texts, in place
//
// Ranges that share what has been looked at so far are sorted by their next windows; where a range
// of equal windows remains, the windows move on. Each window of a text is made at most once. Texts
// are put aside as in any quicksort, the larger side first, and at most eight times more in a range
// of few texts.
template <class Source>
class MultikeySort {
 public:
  using Item = typename Source::Item;

  MultikeySort(Source& source, Item* items, double* windows)
      : source_(source), rows_(make_rows(windows, items)) {}

  void run(std::size_t count) {
    if (count < 2) return;
    Range all = {{0, static_cast<std::ptrdiff_t>(count) - 1}, 0, WindowKind::narrow};
    load(all);
    pending_.push(all);
    while (!pending_.empty()) sort_range(pending_.pop());
  }

 private:
  struct Range {
    Split ends;
    std::size_t depth;  // characters that all texts of the range share
    WindowKind kind;    // of the windows that are loaded
    std::ptrdiff_t count() const noexcept { return ends.j - ends.i + 1; }
  };

  Item* items() const { return std::get<0>(rows_.companions); }

  void load(Range& range) {
    const auto rest = [&](std::ptrdiff_t k) {
      return source_.text(items()[k]).substr(range.depth);
    };
    const auto fold = [this](char16_t unit) { return source_.fold(unit); };
    range.kind = kind_for(rest(range.ends.i));
    for (std::ptrdiff_t k = range.ends.i; k <= range.ends.j; ++k)
      rows_.keys[k] = window_of(rest(k), range.kind, fold);
  }

  // Goes on behind the windows of a range, which are all equal. False when the texts end there.
  bool move_on(Range& range) {
    const WindowContent content = content_of(rows_.keys[range.ends.i], range.kind);
    if (content.ends) {
      source_.equal(items() + range.ends.i, static_cast<std::size_t>(range.count()));
      return false;
    }
    range.depth += content.units;
    load(range);
    return true;
  }

  // Windows below the pivot to the left, equal ones to the right.
  struct BelowPivot {
    static constexpr Flag kLeft = Flag::below_pivot;
    static constexpr Flag kRight = Flag::not_below_pivot;
  };
  // Windows above the pivot to the right, equal ones to the left.
  struct AbovePivot {
    static constexpr Flag kLeft = Flag::not_above_pivot;
    static constexpr Flag kRight = Flag::above_pivot;
  };

  void sort_range(Range range) {
    while (range.count() > kFewRows) range = partition_range(range);
    if (range.count() > 1 && !sort_few_rows<Ascending>(rows_, range.ends.i, range.count()))
      sort_few_with_equals(range);
  }

  // Partitions a range, all equal windows on one side, and puts the larger side aside.
  Range partition_range(const Range& range) {
    const double pivot = pick_pivot(range);
    Range left = range;
    Range right = range;
    right.ends.i = partition<BelowPivot>(rows_, range.ends, pivot).i;
    const bool none_below = right.ends.i == range.ends.i;
    if (none_below) right.ends.i = partition<AbovePivot>(rows_, range.ends, pivot).i;
    left.ends.j = right.ends.i - 1;
    if (none_below && !move_on(left)) return right;
    if (left.count() > right.count()) std::swap(left, right);
    if (right.count() > 1) pending_.push(right);
    return left;
  }

  void sort_few_with_equals(const Range& range) {
    for (std::ptrdiff_t k = range.ends.i + 1; k <= range.ends.j; ++k)
      for (std::ptrdiff_t at = k; at > range.ends.i && rows_.keys[at] < rows_.keys[at - 1]; --at)
        rows_.exchange(at, at - 1);
    for (std::ptrdiff_t first = range.ends.i, last; first <= range.ends.j; first = last + 1) {
      for (last = first; last < range.ends.j && rows_.keys[last + 1] == rows_.keys[first];) ++last;
      Range run = {{first, last}, range.depth, range.kind};
      if (first < last && move_on(run)) pending_.push(run);
    }
  }

  // The middle one of three windows at places that nobody can foresee well enough to make all
  // partitions lopsided.
  double pick_pivot(const Range& range) {
    const auto pick = [&] {
      random_ = random_ * 6364136223846793005u + 1442695040888963407u;
      return rows_
          .keys[range.ends.i + static_cast<std::ptrdiff_t>(
                                   (random_ >> 33) % static_cast<std::uint64_t>(range.count()))];
    };
    const double first = pick();
    const double second = pick();
    return middle_of_three(first, second, pick());
  }

  Source& source_;
  Rows<double, Item> rows_;
  PendingRanges<Range> pending_;
  std::uint64_t random_ = 1;
};

}  // namespace kw::sort
