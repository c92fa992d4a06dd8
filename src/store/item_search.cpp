#include "store/item_search.h"

#include "base/code_page.h"
#include "base/find_unit.h"
#include "parse/keyword.h"
#include "parse/token.h"
#include "store/record_word.h"

namespace kw::store {

Keyword::Keyword(std::u16string_view keyword) : in_page_(narrow_exact(keyword, keyword_)) {
  const bool word = in_page_ && begins_plainly(keyword_) &&
                    find_unit(std::string_view(keyword_), ' ') == kNotFound;
  if (word) opening_ = keyword_ + " '";
}

std::string_view Keyword::value_on(std::string_view line) const noexcept {
  if (!in_page_) return {};
  const auto value = parse::keyword_value(line, keyword_);
  return value ? parse::token_at(*value, 1) : std::string_view();
}

ItemSearch::ItemSearch(std::u16string_view keyword, std::u16string_view value_in_apostrophes)
    : keyword_(keyword), value_(value_in_apostrophes) {
  const std::string_view opening = keyword_.opening();
  if (opening.empty() || opening.size() > 8) return;
  opening_size_ = opening.size();
  opening_bits_ = load_up_to_8(opening.data(), opening_size_);
  opening_mask_ = low_bytes(opening_size_);
}

}  // namespace kw::store
