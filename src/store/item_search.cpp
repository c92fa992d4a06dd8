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

std::string_view Keyword::behind_opening(std::string_view line) const noexcept {
  if (opening_.empty() || !line.starts_with(opening_)) return {};
  return line.substr(opening_.size());
}

bool ItemSearch::matches(std::string_view line) const noexcept {
  const std::string_view value = keyword_.behind_opening(line);
  if (value.data() != nullptr && !value_.may_begin(value)) return false;
  return value_.equals(keyword_.value_on(line));
}

}  // namespace kw::store
