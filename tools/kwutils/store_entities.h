// Putting entities into a file, so that they are found there.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tool/entity_store.h"
#include "tool/rewriting.h"

namespace kw::tool {

struct NewEntity {
  std::u16string id;
  std::u16string text;  // begins with its item "id"
  bool exact = true;    // read back to the letter; else the file's rules may change blanks
};

// The stored entities of the type under their identifiers, as look-ups see them: the first one of
// each. None where the file is missing.
Collection read_entities(const EntityFile& file);

// The text under an identifier, in any case, or "".
String text_under(const Collection& entities, std::u16string_view id);

// Replacements and deletions know an entity by its first item: the identifier must come first.
bool begins_with_identifier(std::u16string_view entity);

// Why entities with these identifiers cannot be replaced in the file: one that a look-up finds, but
// a replacement does not. By the position in `entities`.
struct Conflict {
  std::size_t position;
  std::string reason;
};

struct Stored {
  std::size_t added = 0;
  std::size_t replaced = 0;
  std::vector<Conflict> conflicts;  // these were not stored
};

// Replaces or adds the entities of a type, all in one rewrite, and reads each one back. No two have
// the same identifier without regard to case. Fails (exit status 3) when the file cannot be
// rewritten, or an entity is not read back as it was written.
Stored store_entities(Rewriting& rewriting, const EntityFile& file,
                      const std::vector<NewEntity>& entities);

// Fails (exit status 3) when the text cannot stand between the words of the type as one entity.
void check_entity_text(const EntityFile& file, std::u16string_view id, std::u16string_view text);

}  // namespace kw::tool
