// Look-ups that compare to the letter.
#pragma once

#include <string>

#include "tool/entity_store.h"

namespace kw::tool {

struct ExactLookup {
  String type;
  String id;  // the type, where the first entity of it is sought
};

// What GetEntityWithoutTable and GetTableEntry must be given to find `entity`, which a look-up
// without regard to case found under `id` ("": as the first of its type). Fails (exit status 3)
// where they do not find it.
ExactLookup exact_lookup(const EntityFile& file, const std::string& id, const String& entity);

}  // namespace kw::tool
