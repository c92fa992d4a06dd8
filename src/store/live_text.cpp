#include "store/live_text.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/find_text.h"
#include "parse/item.h"
#include "parse/keyword.h"
#include "parse/line.h"
#include "parse/token.h"

namespace kw::store {

namespace {

// The first word, in its quotes.
std::u16string first_word(std::u16string_view text) {
  const auto item = parse::take_item(text);
  std::u16string word(item.text);
  if (item.quote == 0) return word;
  return item.quote + word + item.quote;
}

std::u16string_view value_behind(std::u16string_view text, std::u16string_view keyword) {
  const auto value = parse::keyword_value(parse::take_line(text), keyword);
  return value ? parse::token_at(*value, 1) : std::u16string_view();
}

std::u16string_view without_apostrophe(std::u16string_view text) noexcept {
  if (text.ends_with(u'\'')) text.remove_suffix(1);
  return text;
}

}  // namespace

const Keyword& LiveKeyword::of(String& variable) {
  if (!text_.follow(variable)) return keyword_;
  if (text_.text().ends_with(u'\'')) {
    variable = String(parse::trim(without_apostrophe(text_.text())));
    text_.follow(variable);
  }
  keyword_ = Keyword(text_.text());
  return keyword_;
}

const Keyword& LiveVariantKeyword::of(Variant& variable) {
  String scratch;
  std::u16string text(variable.text(scratch));
  if (find_unit(std::u16string_view(text), u'\t') != kNotFound) {
    std::replace(text.begin(), text.end(), u'\t', u' ');
    variable.store(String(text));
  }
  if (text != text_) {
    text_ = text;
    keyword_ = Keyword(without_apostrophe(parse::trim(std::u16string_view(text))));
  }
  return keyword_;
}

bool LiveFilter::passes(std::string_view line, const String& variable) {
  if (text_.follow(variable)) follow(text_.text());
  if (text_.text().empty()) return true;
  if (!in_page_ || (!wanted_.empty() && find_text(line, wanted_) == kNotFound)) return false;
  return keyword_.value_on(line) == wanted_;
}

void LiveFilter::follow(std::u16string_view text) {
  const std::u16string keyword = first_word(parse::trim(text));
  keyword_ = Keyword(keyword);
  in_page_ = narrow_exact(value_behind(text, keyword), wanted_);
}

}  // namespace kw::store
