// clsParse: sub-entities, word lists, and the replacement of a value.
#include <string>

#include "base/case_map.h"
#include "base/compare_text.h"
#include "kwutils/clsParse.h"
#include "parse/word.h"
#include "parse/word_walk.h"

namespace kw {
namespace {

using parse::Item;
using parse::WordWalk;

// Gathers the text of one sub-entity after the other.
class SubEntities {
 public:
  SubEntities(std::u16string_view text, std::u16string_view token)
      : walk_(text), opener_(upper(token)), closer_(lower(token)) {}

  // Reads to the next closing word; false when there is no more. text() is then what was gathered
  // of a sub-entity that is not closed.
  bool next() {
    text_.clear();
    bool inside = false;
    for (Item<char16_t> item; walk_.next(item);) {
      const std::u16string_view word = parse::with_quotes(item, scratch_);
      if (!inside) {
        inside = word == opener_;
      } else if (word == closer_) {
        return true;
      } else {
        append(word);
      }
    }
    return false;
  }

  const std::u16string& text() const noexcept { return text_; }
  const std::u16string& closer() const noexcept { return closer_; }

 private:
  void append(std::u16string_view word) {
    if (!text_.empty()) text_ += u' ';
    text_ += word;
  }

  WordWalk walk_;
  std::u16string opener_;
  std::u16string closer_;
  std::u16string text_;
  std::u16string scratch_;
};

// Adds the words between the opening and the closing word; leaves the walk behind the latter.
void add_words(WordWalk& walk, std::u16string_view opener, std::u16string_view closer,
               const Collection& words) {
  bool inside = false;
  for (Item<char16_t> word; walk.next(word);) {
    if (!inside) {
      inside = word.text == opener;
    } else if (word.text == closer) {
      return;
    } else {
      words.add(Variant(String(word.text)));
    }
  }
}

}  // namespace

String clsParse::ParseSubEntity(std::u16string_view Entity, std::u16string_view Token) const {
  SubEntities entities(Entity, Token);
  if (!parse::contains(Entity, entities.closer())) return {};
  entities.next();
  return String(entities.text());
}

std::int32_t clsParse::ParseSubEntitiesIntoColl(std::u16string_view Entity,
                                                std::u16string_view Token,
                                                Collection& colBuffer) const {
  colBuffer = Collection::create();
  SubEntities entities(Entity, Token);
  while (entities.next()) colBuffer.add(Variant(String(entities.text())));
  return colBuffer.count();
}

std::int32_t clsParse::ParseTokenListIntoColl(String& Entity, std::u16string_view StartToken,
                                              Collection& collList) const {
  collList = Collection::create();
  const std::u16string closer = lower(StartToken);
  if (!parse::contains(Entity.view(), closer)) return 0;
  WordWalk walk(Entity);
  add_words(walk, StartToken, closer, collList);
  Entity = walk.rest();
  return collList.count();
}

String clsParse::ReplaceEntity(String& Entity, const String& Token,
                               const String& replacestring) const {
  const std::u16string_view keyword = parse::trim(Token.view());
  std::u16string result;
  std::u16string scratch;
  for (std::u16string_view rest = Entity; !rest.empty();) {
    const std::u16string_view word = parse::with_quotes(parse::take_item(rest), scratch);
    result.append(word) += u' ';
    if (!equal_text(word, keyword)) continue;
    result.append(replacestring.view()) += u' ';
    parse::take_item(rest);
  }
  Entity = String();
  return String(result);
}

}  // namespace kw
