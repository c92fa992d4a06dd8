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
    if (!in_bits_ || record.size() < 8) return opens_slowly(record, rest);
    if ((load_8(record.data()) ^ bits_) << shift_ != 0)
      return !begins_plainly(record) && opens_slowly(record, rest);
    rest = parse::trim_left(record.substr(size_ + 1));
    return true;
  }
  // Whether this is the word, taken off a record.
  bool is(std::string_view word) const noexcept { return in_page_ && word == bytes_; }

 private:
  bool opens_slowly(std::string_view record, std::string_view& rest) const;

  std::u16string text_;
  ClosingWord closing_;
  std::string bytes_;
  bool in_page_;
  std::size_t size_;
  // The word and the blank behind it, where both fit into eight characters and the word is one that
  // stands before the first blank.
  bool in_bits_ = false;
  unsigned shift_ = 0;
  std::uint64_t bits_ = 0;
};

}  // namespace kw::store
