#include "tool/line_match.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace kw::tool {
namespace {

using Lines = std::vector<std::uint32_t>;

struct Range {
  std::size_t old_begin, old_end, new_begin, new_end;
};

using Pair = std::pair<std::size_t, std::size_t>;  // the place of a line in both texts

constexpr std::size_t kLargestTable = std::size_t{1} << 22;

class Matcher {
 public:
  Matcher(const Lines& old_lines, const Lines& new_lines) : old_(old_lines), new_(new_lines) {
    match_.removed.assign(old_.size(), true);
    match_.added.assign(new_.size(), true);
  }

  LineMatch run() {
    todo_.push_back({0, old_.size(), 0, new_.size()});
    while (!todo_.empty()) {
      const Range range = todo_.back();
      todo_.pop_back();
      match(without_equal_ends(range));
    }
    return std::move(match_);
  }

 private:
  void keep(std::size_t old_line, std::size_t new_line) {
    match_.removed[old_line] = false;
    match_.added[new_line] = false;
  }

  Range without_equal_ends(Range range) {
    while (range.old_begin < range.old_end && range.new_begin < range.new_end &&
           old_[range.old_begin] == new_[range.new_begin])
      keep(range.old_begin++, range.new_begin++);
    while (range.old_begin < range.old_end && range.new_begin < range.new_end &&
           old_[range.old_end - 1] == new_[range.new_end - 1])
      keep(--range.old_end, --range.new_end);
    return range;
  }

  void match(const Range& range) {
    if (range.old_begin == range.old_end || range.new_begin == range.new_end) return;
    const std::vector<Pair> anchors = longest_rising(once_in_both(range));
    if (anchors.empty()) return match_by_table(range);
    Range gap = range;
    for (const auto& [old_line, new_line] : anchors) {
      keep(old_line, new_line);
      todo_.push_back({gap.old_begin, old_line, gap.new_begin, new_line});
      gap.old_begin = old_line + 1;
      gap.new_begin = new_line + 1;
    }
    todo_.push_back(gap);
  }

  // In the order of the old text.
  std::vector<Pair> once_in_both(const Range& range) const {
    struct Uses {
      unsigned old_count = 0, new_count = 0;
      std::size_t new_line = 0;
    };
    std::unordered_map<std::uint32_t, Uses> uses;
    for (std::size_t i = range.old_begin; i < range.old_end; ++i) ++uses[old_[i]].old_count;
    for (std::size_t i = range.new_begin; i < range.new_end; ++i) {
      Uses& use = uses[new_[i]];
      ++use.new_count;
      use.new_line = i;
    }
    std::vector<Pair> pairs;
    for (std::size_t i = range.old_begin; i < range.old_end; ++i) {
      const Uses& use = uses[old_[i]];
      if (use.old_count == 1 && use.new_count == 1) pairs.emplace_back(i, use.new_line);
    }
    return pairs;
  }

  // The longest choice of pairs whose places in the new text rise, too.
  static std::vector<Pair> longest_rising(const std::vector<Pair>& pairs) {
    std::vector<std::size_t> tops;  // the pair that ends the best choice of each length
    std::vector<std::size_t> before(pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
      const auto place = std::lower_bound(
          tops.begin(), tops.end(), pairs[i].second,
          [&](std::size_t top, std::size_t line) { return pairs[top].second < line; });
      before[i] = place == tops.begin() ? i : place[-1];
      if (place == tops.end())
        tops.push_back(i);
      else
        *place = i;
    }
    std::vector<Pair> chosen(tops.size());
    for (std::size_t n = tops.size(), at = n == 0 ? 0 : tops.back(); n-- > 0; at = before[at])
      chosen[n] = pairs[at];
    return chosen;
  }

  // The longest common choice of lines, by a table of all pairs.
  void match_by_table(const Range& range) {
    const std::size_t rows = range.old_end - range.old_begin;
    const std::size_t columns = range.new_end - range.new_begin;
    if (rows > kLargestTable / columns) return;
    std::vector<std::uint32_t> longest((rows + 1) * (columns + 1));
    const auto at = [&](std::size_t row, std::size_t column) -> std::uint32_t& {
      return longest[row * (columns + 1) + column];
    };
    const auto same = [&](std::size_t row, std::size_t column) {
      return old_[range.old_begin + row] == new_[range.new_begin + column];
    };
    for (std::size_t row = rows; row-- > 0;)
      for (std::size_t column = columns; column-- > 0;)
        at(row, column) = same(row, column) ? at(row + 1, column + 1) + 1
                                            : std::max(at(row + 1, column), at(row, column + 1));
    for (std::size_t row = 0, column = 0; row < rows && column < columns;) {
      if (same(row, column))
        keep(range.old_begin + row++, range.new_begin + column++);
      else if (at(row + 1, column) >= at(row, column + 1))
        ++row;
      else
        ++column;
    }
  }

  const Lines& old_;
  const Lines& new_;
  LineMatch match_;
  std::vector<Range> todo_;
};

}  // namespace

LineMatch match_lines(const Lines& old_lines, const Lines& new_lines) {
  return Matcher(old_lines, new_lines).run();
}

}  // namespace kw::tool
