#include "store/search_key.h"

#include "base/code_page.h"
#include "base/find_text.h"
#include "parse/text_view.h"

namespace kw::store {

namespace {

bool all_blanks(std::string_view text) noexcept { return parse::trim(text).empty(); }

}  // namespace

SearchKey::SearchKey(std::u16string_view key) : in_page_(narrow_exact(key, core_)) {
  if (!in_page_ || all_blanks(core_)) return;
  const std::string_view whole = core_;
  blanks_before_ = whole.size() - parse::trim_left(whole).size();
  blanks_behind_ = whole.size() - parse::trim_right(whole).size();
  core_ = parse::trim(whole);
}

bool SearchKey::in(std::string_view record) const noexcept {
  if (!in_page_) return false;
  if (blanks_before_ + blanks_behind_ == 0) return find_text(record, core_) != kNotFound;
  for (std::size_t at = blanks_before_;; ++at) {
    at = find_text(record, core_, at);
    if (at == kNotFound) return false;
    const std::size_t end = at + core_.size();
    if (record.size() - end >= blanks_behind_ &&
        all_blanks(record.substr(at - blanks_before_, blanks_before_)) &&
        all_blanks(record.substr(end, blanks_behind_)))
      return true;
  }
}

std::u16string identifier_key(std::u16string_view id, std::u16string_view type) {
  if (id.empty()) return std::u16string(type);
  return std::u16string(u" id '").append(id).append(u"' ");
}

std::u16string identifier_or_literal_key(std::u16string_view id, std::u16string_view type) {
  const bool literal = find_unit(id, u'\'') != kNotFound;
  return literal ? std::u16string(id) : identifier_key(id, type);
}

}  // namespace kw::store
