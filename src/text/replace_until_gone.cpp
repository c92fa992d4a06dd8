#include "text/replace_until_gone.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/find_text.h"

namespace kw::text {
namespace {

// A text with a gap in it: before the gap stands what holds no occurrence, behind it what is still
// to be searched.
//
// The first occurrence in a text is the one that ends first. Once it is replaced, the next one ends
// behind everything that was searched before, so it begins at most one character less than its
// length before the replacement: only so much is searched again.
class GapText {
 public:
  explicit GapText(std::u16string_view text) : units_(text) {}

  std::u16string_view unsearched() const noexcept {
    return std::u16string_view(units_).substr(gap_end_);
  }

  // Replaces the `length` characters at `place` of what is unsearched, and goes back so far that an
  // occurrence that begins before the replacement is found.
  void replace(std::size_t place, std::size_t length, std::u16string_view by) {
    keep(place);
    gap_end_ += length;
    insert(by);
    go_back(std::min(gap_begin_, length == 0 ? 0 : length - 1));
  }

  std::u16string take() {
    keep(units_.size() - gap_end_);
    units_.resize(gap_begin_);
    return std::move(units_);
  }

 private:
  void keep(std::size_t length) {
    std::u16string::traits_type::move(units_.data() + gap_begin_, units_.data() + gap_end_, length);
    gap_begin_ += length;
    gap_end_ += length;
  }
  void go_back(std::size_t length) {
    gap_begin_ -= length;
    gap_end_ -= length;
    std::u16string::traits_type::move(units_.data() + gap_end_, units_.data() + gap_begin_, length);
  }
  void insert(std::u16string_view by) {
    if (gap_end_ - gap_begin_ < by.size()) widen_gap(by.size());
    gap_end_ -= by.size();
    by.copy(units_.data() + gap_end_, by.size());
  }
  // Half as long again, so that a growing text is not moved for every step of its growth.
  void widen_gap(std::size_t room) {
    if (units_.size() > kLongest) throw std::length_error("no text is that long");
    const std::size_t more = room + units_.size() / 2;
    units_.insert(gap_end_, more, u'\0');
    gap_end_ += more;
  }

  // More than this no caller could be given.
  static constexpr std::size_t kLongest = 0x7FFF'FFF0;

  std::u16string units_;
  std::size_t gap_begin_ = 0;
  std::size_t gap_end_ = 0;
};

}  // namespace

std::u16string replace_until_gone(std::u16string_view text, std::u16string_view sought,
                                  std::u16string_view by) {
  GapText result(text);
  for (;;) {
    const std::size_t place = find_text(result.unsearched(), sought);
    if (place == kNotFound) return result.take();
    result.replace(place, sought.size(), by);
  }
}

}  // namespace kw::text
