#include "store/replace_entity.h"

#include "base/case_map.h"
#include "base/code_page.h"
#include "store/key_lookahead.h"
#include "store/record_word.h"

namespace kw::store {

namespace {

class Replacing {
 public:
  Replacing(Rewrite& to, const TypeWord& type, const WriteEntityLine& new_entity)
      : to_(to), type_(type), new_entity_(new_entity), owed_(static_cast<bool>(new_entity)) {}

  void take(std::string_view record, bool has_key) {
    const bool first = first_;
    first_ = false;
    if (has_key) return take_block(record, first);
    if (!record.empty()) to_.write_line(record);
  }
  void pay() {
    if (owed_) new_entity_(to_);
    owed_ = false;
  }

 private:
  void take_block(std::string_view record, bool first) {
    const std::string_view word = take_first_word(record).word;
    if (type_.is(word)) {
      to_.drop_block(record, type_.closing());
      pay();
    } else if (first && word.size() == 6) {
      to_.write_line(record);
    } else {
      foreign_.follow(word);
      to_.copy_block(record, foreign_);
    }
  }

  Rewrite& to_;
  const TypeWord& type_;
  const WriteEntityLine& new_entity_;
  ClosingWord foreign_;
  bool owed_;
  bool first_ = true;
};

}  // namespace

void replace_entity(std::u16string_view file, const TypeWord& type, const SearchKey& key,
                    const WriteEntityLine& new_entity) {
  Rewrite to(file);
  Replacing replacing(to, type, new_entity);
  KeyLookahead lookahead(key);
  while (!to.at_end()) {
    const std::string_view record = to.next();
    replacing.take(record, lookahead.in(record, to.old_records()));
  }
  replacing.pay();
  to.finish();
}

EntityFrame::EntityFrame(const TypeWord& type)
    : before(narrow(type.text()) + ' '), behind(' ' + narrow(lower(type.text()))) {}

}  // namespace kw::store
