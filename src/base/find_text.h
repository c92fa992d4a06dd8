// The first place of one text in another, of 8-bit or 16-bit code units.
//
// Sixteen bytes at a time are compared with the first and the last character of what is sought;
// only where both fit are the characters between them looked at. Where that work grows out of
// proportion ("aaa...b" in "aaa...a"), a search of linear time takes over, so no input is slow.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

#include "base/find_unit.h"
#include "base/two_way.h"
#include "base/vector_units.h"

namespace kw {

namespace detail {

template <class Char>
class TextSearch {
 public:
  using View = std::basic_string_view<Char>;

  // `sought` has at least two characters, `text` at least as many.
  TextSearch(View text, View sought) noexcept
      : text_(text), sought_(sought), places_(text.size() - sought.size() + 1) {}

  std::size_t find(std::size_t start) noexcept {
    std::size_t place = start;
#if KW_VECTOR_UNITS
    using Block = detail::Block<Char>;
    const Block first = Block::of(sought_.front());
    const Block last = Block::of(sought_.back());
    for (; place < places_ && places_ - place >= Block::kSize; place += Block::kSize) {
      const Char* units = text_.data() + place;
      auto hits =
          (Block::load(units).equal(first) & Block::load(units + sought_.size() - 1).equal(last))
              .mask();
      for (; !hits.empty(); hits.drop_first()) {
        if (matches(place + hits.first())) return place + hits.first();
      }
      if (is_slow(place - start)) return find_linear(place);
    }
#endif
    for (; place < places_; ++place) {
      if (text_[place] == sought_.front() && matches(place)) return place;
      if (is_slow(place - start)) return find_linear(place);
    }
    return kNotFound;
  }

 private:
  static constexpr std::uint64_t kPatience = 64;  // characters compared for one that is passed
  static constexpr std::uint64_t kStartingCredit = 4096;

  bool is_slow(std::uint64_t passed) const noexcept {
    return work_ > kPatience * passed + kStartingCredit;
  }
  bool matches(std::size_t place) noexcept {
    work_ += sought_.size();
    return std::memcmp(text_.data() + place, sought_.data(), sought_.size() * sizeof(Char)) == 0;
  }
  std::size_t find_linear(std::size_t place) const noexcept {
    const std::size_t found = TwoWay<Char>(sought_).find(text_.substr(place));
    return found == kNotFound ? kNotFound : place + found;
  }

  View text_;
  View sought_;
  std::size_t places_;
  std::uint64_t work_ = 0;
};

}  // namespace detail

// The position (from 0) of the first `sought` in `text` at or after `start`, or kNotFound. An empty
// sought text is found at `start` when a character stands there, otherwise, so also in an empty
// text, not at all.
template <class Char>
std::size_t find_text(std::basic_string_view<Char> text,
                      std::type_identity_t<std::basic_string_view<Char>> sought,
                      std::size_t start = 0) noexcept {
  if (start >= text.size() || text.size() - start < sought.size()) return kNotFound;
  if (sought.empty()) return start;
  if (sought.size() == 1) return find_unit(text, sought.front(), start);
  return detail::TextSearch<Char>(text, sought).find(start);
}

}  // namespace kw
