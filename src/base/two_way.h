// The two-way string search (Crochemore and Perrin): time linear in the text for every sought text,
// without any memory of its own.
//
// Slower than a vector search on ordinary text, so it serves where that one would compare the same
// characters over and over (find_text.h).
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "base/find_unit.h"

namespace kw::detail {

// Where a text is cut for the search, and a period of its right part.
struct Factorization {
  std::size_t cut;
  std::size_t period;
};

// The greatest suffix of `text` in the order of the code units, or in the reverse order.
template <class Char>
Factorization maximal_suffix(std::basic_string_view<Char> text, bool reverse) noexcept {
  std::size_t suffix = 0;
  std::size_t rival = 1;
  std::size_t offset = 0;
  std::size_t period = 1;
  while (rival + offset < text.size()) {
    const Char ours = text[suffix + offset];
    const Char theirs = text[rival + offset];
    if (ours == theirs) {
      if (++offset == period) {
        rival += period;
        offset = 0;
      }
    } else if ((theirs < ours) != reverse) {
      rival += offset + 1;
      offset = 0;
      period = rival - suffix;
    } else {
      suffix = rival;
      rival = suffix + 1;
      offset = 0;
      period = 1;
    }
  }
  return {suffix, period};
}

template <class Char>
class TwoWay {
 public:
  // `sought` is not empty and outlives this.
  explicit TwoWay(std::basic_string_view<Char> sought) noexcept : sought_(sought) {
    const Factorization one = maximal_suffix(sought, false);
    const Factorization two = maximal_suffix(sought, true);
    at_ = one.cut > two.cut ? one : two;
    periodic_ = sought.substr(0, at_.cut) == sought.substr(at_.period, at_.cut);
    if (!periodic_) at_.period = std::max(at_.cut, sought.size() - at_.cut) + 1;
  }

  // The first occurrence in `text`, or kNotFound.
  std::size_t find(std::basic_string_view<Char> text) const noexcept {
    std::size_t known = 0;  // so many characters are known to match at `place`
    for (std::size_t place = 0; text.size() - place >= sought_.size();) {
      const std::size_t right = match_right(text.data() + place, known);
      if (right < sought_.size()) {
        place += right - at_.cut + 1;
        known = 0;
      } else if (match_left(text.data() + place, known)) {
        return place;
      } else {
        place += at_.period;
        known = periodic_ ? sought_.size() - at_.period : 0;
      }
      if (place > text.size()) break;
    }
    return kNotFound;
  }

 private:
  std::size_t match_right(const Char* text, std::size_t known) const noexcept {
    std::size_t at = std::max(at_.cut, known);
    while (at < sought_.size() && sought_[at] == text[at]) ++at;
    return at;
  }
  bool match_left(const Char* text, std::size_t known) const noexcept {
    std::size_t at = at_.cut;
    while (at > known && sought_[at - 1] == text[at - 1]) --at;
    return at <= known;
  }

  std::basic_string_view<Char> sought_;
  Factorization at_;
  bool periodic_;
};

}  // namespace kw::detail
