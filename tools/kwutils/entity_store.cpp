#include "tool/entity_store.h"

#include <algorithm>

#include "base/numeric_text.h"
#include "base/unicode.h"
#include "parse/item.h"
#include "parse/keyword.h"
#include "parse/token.h"
#include "tool/failure.h"
#include "tool/notation.h"

namespace kw::tool {
namespace {

using View = std::u16string_view;

struct Word {
  View text;
  bool quoted;
};

View first_line(View entity) { return entity.substr(0, entity.find(u'\r')); }

std::vector<Word> words_of(View line) {
  std::vector<Word> words;
  for (line = parse::trim(line); !line.empty();) {
    const auto item = parse::take_item(line);
    if (item.quote == 0 && item.text == u"TBLE") break;  // rows follow
    words.push_back({item.text, item.quote != 0});
  }
  return words;
}

bool known(const std::vector<Item>& items, View keyword) {
  return std::any_of(items.begin(), items.end(),
                     [&](const Item& item) { return item.keyword == keyword; });
}

// Whether a look-up finds this very value under the word.
bool is_item(View line, const Word& keyword, const Word& value) {
  return !keyword.quoted && !keyword.text.empty() && read_item(line, keyword.text) == value.text;
}

// Keyword and value by turns, as an entity is usually written. Empty where the line is none such.
std::vector<Item> strict_items(View line, const std::vector<Word>& words) {
  std::vector<Item> items;
  if (words.size() % 2 != 0) return {};
  for (std::size_t i = 0; i < words.size(); i += 2) {
    if (!is_item(line, words[i], words[i + 1]) || known(items, words[i].text)) return {};
    items.push_back({std::u16string(words[i].text), std::u16string(words[i + 1].text)});
  }
  return items;
}

// An item may have several values: those beyond the first are taken for such that are quoted or
// numbers.
std::vector<Item> likely_items(View line, const std::vector<Word>& words) {
  std::vector<Item> items;
  for (std::size_t i = 0; i + 1 < words.size(); ++i) {
    const bool value = words[i].quoted || parse_number(words[i].text).has_value();
    if (value || known(items, words[i].text) || !is_item(line, words[i], words[i + 1])) continue;
    items.push_back({std::u16string(words[i].text), std::u16string(words[i + 1].text)});
    ++i;
  }
  return items;
}

}  // namespace

void check_type(const std::string& type) {
  const std::string fault = type_fault(from_utf8(type));
  if (!fault.empty()) fail_usage(in_quotes(type) + " cannot be the name of a type: it " + fault);
}

std::optional<String> item_of(View entity, View keyword) {
  const auto value = parse::keyword_value(first_line(entity), keyword);
  if (!value) return std::nullopt;
  return String(parse::token_at(*value, 1));
}

std::vector<Item> items_of(View entity) {
  const View line = first_line(entity);
  const std::vector<Word> words = words_of(line);
  std::vector<Item> items = strict_items(line, words);
  return items.empty() ? likely_items(line, words) : items;
}

std::size_t count_words(View entity) { return words_of(first_line(entity)).size(); }

}  // namespace kw::tool
