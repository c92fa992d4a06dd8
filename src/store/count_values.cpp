#include "store/count_values.h"

#include <string>

#include "base/code_page.h"
#include "base/find_text.h"
#include "parse/item.h"
#include "parse/line.h"
#include "store/entity_reader.h"

namespace kw::store {

namespace {

// A word to compare with; one that the code page lacks equals none.
class Word {
 public:
  explicit Word(std::u16string_view text) : in_page_(narrow_exact(text, bytes_)) {}
  bool is(std::string_view word) const noexcept { return in_page_ && word == bytes_; }
  // False when no word of the text is this one.
  bool may_be_in(std::string_view text) const noexcept {
    return in_page_ && (bytes_.empty() || find_text(text, bytes_) != kNotFound);
  }

 private:
  std::string bytes_;
  bool in_page_;
};

struct Pair {
  explicit Pair(const CountedItem& item) : keyword(item.keyword), value(item.value) {}

  // Whether `word` is the keyword; its value is then taken off the line, and counted if it is the
  // right one.
  bool take(std::string_view word, std::string_view& line, std::int32_t& count, bool& met) const {
    if (!keyword.is(word)) return false;
    if (value.is(parse::take_item(line).text)) {
      met = true;
      ++count;
    }
    return true;
  }

  Word keyword;
  Word value;
};

class Counter {
 public:
  Counter(const CountedItem& key, const CountedItem& id, ValueCounts counts)
      : key_(key), id_(id), counts_(counts) {}

  void take_entity(std::string_view text) {
    // Most entities hold neither value, which is cheaper to see than their words.
    if (!id_.value.may_be_in(text) && !key_.value.may_be_in(text)) return;
    key_met_ = id_met_ = false;
    while (!parse::trim(text).empty()) {
      std::string_view line = parse::take_line(text);
      while (!line.empty()) take_word(line);
    }
    if (key_met_ && id_met_) ++counts_.both;
  }

 private:
  void take_word(std::string_view& line) {
    const std::string_view word = parse::take_item(line).text;
    if (!id_.take(word, line, counts_.id, id_met_)) key_.take(word, line, counts_.key, key_met_);
  }

  Pair key_;
  Pair id_;
  ValueCounts counts_;
  bool key_met_ = false;
  bool id_met_ = false;
};

}  // namespace

void count_values(std::u16string_view file, std::u16string_view token, const CountedItem& key,
                  const CountedItem& id, ValueCounts counts) {
  EntityReader entities(file, token, Tables::leave_out);
  Counter counter(key, id, counts);
  while (entities.next()) counter.take_entity(entities.text());
}

}  // namespace kw::store
