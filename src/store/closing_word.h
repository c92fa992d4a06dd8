// The word that closes a block when a record ends in it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "store/word_bits.h"

namespace kw::store {

// Compared to the letter with the last characters of a record; no blank need stand before it. An
// empty one closes every block.
class ClosingWord {
 public:
  ClosingWord() = default;
  // Lower case of `opening`. A word that the code page lacks closes nothing.
  explicit ClosingWord(std::u16string_view opening);

  // Becomes the lower case of the word that opened a block.
  void follow(std::string_view opening);
  // Becomes a word of 1 to 8 characters.
  void follow_bits(std::uint64_t lower_case, std::size_t size) noexcept;

  std::size_t size() const noexcept { return size_; }

  bool closes(std::string_view record) const noexcept {
    if (!in_bits_ || record.size() < 8) return closes_slowly(record);
    return load_8(record.data() + record.size() - 8) >> (64 - 8 * size_) == bits_;
  }
  // The record without the word; only where it closes.
  std::string_view without(std::string_view record) const noexcept {
    return record.substr(0, record.size() - size_);
  }

 private:
  bool closes_slowly(std::string_view record) const noexcept;

  std::size_t size_ = 0;
  bool in_bits_ = false;  // 1 to 8 characters, kept in bits_
  bool in_page_ = true;
  std::uint64_t bits_ = 0;
  std::string text_;  // any other length
};

inline void ClosingWord::follow_bits(std::uint64_t bits, std::size_t size) noexcept {
  size_ = size;
  bits_ = bits;
  in_bits_ = in_page_ = true;
}

}  // namespace kw::store
