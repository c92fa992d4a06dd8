#include "store/replace_entities.h"

#include <cstdint>
#include <string>

#include "base/code_page.h"
#include "parse/token.h"
#include "store/replace_entity.h"
#include "store/rewrite.h"
#include "store/type_word.h"

namespace kw::store {

namespace {

// The first tokens of a record.
struct RecordTokens {
  explicit RecordTokens(std::string_view record) {
    parse::TokenReader<char> tokens(record);
    for (std::string_view* token : {&first, &second, &third}) {
      const auto read = tokens.next();
      if (!read) return;
      *token = *read;
    }
  }
  std::string_view identifier() const noexcept { return second == "id" ? third : second; }

  std::string_view first, second, third;
};

// Copies a file but for the entities whose identifiers are keys of a collection.
class Selection {
 public:
  Selection(std::u16string_view file, const TypeWord& type, const Collection& keys)
      : to_(file), type_(type), keys_(keys) {}

  // on_met(key) is called behind each entity that is left out, with its key.
  template <class OnMet>
  void copy_others(OnMet&& on_met) {
    for (bool first = true; !to_.at_end(); first = false) {
      const std::string_view record = to_.next();
      const RecordTokens tokens(record);
      if (!type_.is(tokens.first)) {
        copy_foreign(record, tokens.first, first);
      } else if (is_key(tokens.identifier())) {
        to_.drop_block(record, type_.closing());
        on_met(std::u16string_view(key_));
      } else {
        to_.copy_block(record, type_.closing());
      }
    }
  }

  Rewrite& to() noexcept { return to_; }

 private:
  void copy_foreign(std::string_view record, std::string_view word, bool first) {
    if (first && word.size() == 6) return to_.write_line(record);
    foreign_.follow(word);
    to_.copy_block(record, foreign_);
  }
  bool is_key(std::string_view identifier) {
    key_.resize(identifier.size());
    widen(identifier, key_.data());
    return keys_.holds_text(key_);
  }

  Rewrite to_;
  const TypeWord& type_;
  const Collection& keys_;
  ClosingWord foreign_;
  std::u16string key_;
};

}  // namespace

void remove_entities(std::u16string_view file, std::u16string_view token,
                     const Collection& identifiers) {
  const TypeWord type = TypeWord::of_token(token);
  Selection selection(file, type, identifiers);
  selection.copy_others([&](std::u16string_view key) { identifiers.remove(key); });
  selection.to().finish();
}

void write_entities(std::u16string_view file, std::u16string_view token,
                    const Collection& entities) {
  const TypeWord type = TypeWord::of_token(token);
  const EntityFrame frame(type);
  Selection selection(file, type, entities);
  std::string line;
  const auto compose = [&](const Variant& entity) {
    String scratch;
    line.assign(frame.before);
    narrow_append(entity.text(scratch), line);
    line.append(frame.behind);
  };
  selection.copy_others([&](std::u16string_view key) {
    compose(entities.item(key));
    entities.remove(key);
    selection.to().write_line(line);
  });
  const std::int32_t count = entities.count();
  for (std::int32_t position = 1; position <= count; ++position) {
    compose(entities.item(position));
    selection.to().write_line(line);
  }
  selection.to().finish();
}

}  // namespace kw::store
