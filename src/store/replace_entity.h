// One entity of a file replaced, added or removed.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "store/rewrite.h"
#include "store/search_key.h"
#include "store/type_word.h"

namespace kw::store {

// Writes the line of an entity, whatever lies between its words, with its line end.
using WriteEntityLine = std::function<void(Rewrite& to)>;

// Rewrites `file` with each block of the type whose opening record holds the key left out, and the
// new entity, if there is one, in the place of the first of them, or else at the end. A record
// elsewhere that holds the key is looked at too: it counts as an opening record, whose block is
// then copied unseen. A missing file is created.
void replace_entity(std::u16string_view file, const TypeWord& type, const SearchKey& key,
                    const WriteEntityLine& new_entity);

// The words around the text of an entity as they are written: "NODE " and " node".
struct EntityFrame {
  explicit EntityFrame(const TypeWord& type);

  std::string before;
  std::string behind;
};

}  // namespace kw::store
