#include "store/type_word.h"

#include "base/case_map.h"
#include "base/code_page.h"
#include "base/find_unit.h"

namespace kw::store {

TypeWord TypeWord::of_token(std::u16string_view token) {
  return TypeWord(upper(parse::trim(token)));
}

TypeWord::TypeWord(std::u16string_view word)
    : text_(word), closing_(word), in_page_(narrow_exact(word, bytes_)), size_(word.size()) {
  if (!in_page_ || size_ > 7 || !begins_plainly(bytes_)) return;
  if (find_unit(std::string_view(bytes_), ' ') != kNotFound) return;
  bits_ = {low_bytes(size_ + 1), load_up_to_8((bytes_ + ' ').data(), size_ + 1), size_ + 1};
}

bool TypeWord::opens_slowly(std::string_view record, std::string_view& rest) const {
  const RecordWord first = take_first_word(record);
  if (!is(first.word)) return false;
  rest = first.rest;
  return true;
}

}  // namespace kw::store
