// The word that names a type of entities: it opens a block of that type and, in lower case, closes
// it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "store/closing_word.h"
#include "store/record_word.h"
#include "store/word_bits.h"

namespace kw::store {

// A word and the blank behind it, in the first eight characters of a record.
struct TypeBits {
  bool open(std::uint64_t first_8) const noexcept { return (first_8 & mask) == bits; }

  std::uint64_t mask = 0;
  std::uint64_t bits = 1;  // no record shows so under a mask of nothing
  std::size_t size_with_blank = 0;
};

class TypeWord {
 public:
  // A caller's token, in any case and with blanks around it, opens in upper case.
  static TypeWord of_token(std::u16string_view token);
  // Opens blocks to the letter as it stands.
  explicit TypeWord(std::u16string_view word);

  // The word, as it opens.
  std::u16string_view text() const noexcept { return text_; }
  const ClosingWord& closing() const noexcept { return closing_; }

  // Whether the record's first word is this one; if so, `rest` is what follows it.
  bool opens(std::string_view record, std::string_view& rest) const {
    if (!has_bits() || record.size() < 8) return opens_slowly(record, rest);
    if (!bits_.open(load_8(record.data())))
      return !begins_plainly(record) && opens_slowly(record, rest);
    rest = parse::trim_left(record.substr(size_ + 1));
    return true;
  }
  // Whether bits() tells of every record of eight characters or more that begins plainly whether
  // the word opens it.
  bool has_bits() const noexcept { return bits_.mask != 0; }
  const TypeBits& bits() const noexcept { return bits_; }
  // Whether this is the word, taken off a record.
  bool is(std::string_view word) const noexcept { return in_page_ && word == bytes_; }

 private:
  bool opens_slowly(std::string_view record, std::string_view& rest) const;

  std::u16string text_;
  ClosingWord closing_;
  std::string bytes_;
  bool in_page_;
  std::size_t size_;
  TypeBits bits_;  // where the word is a short one that stands before the first blank
};

}  // namespace kw::store
