// The entries of a collection with their keys.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "frame/collection_items.h"
#include "frame/collection_object.h"
#include "kwutils/collection.h"

namespace kw::tool {

struct CollectionEntry {
  std::optional<std::u16string> key;
  std::u16string_view text;
};

// Hands each entry of one of the library's own collections to function(entry), in their order.
template <class Function>
void for_each_entry(const Collection& collection, Function&& function) {
  const frame::CollectionItems& items = *frame::own_items(collection.object().pointer());
  for (std::size_t i = 1; i <= items.size(); ++i) {
    const frame::CollectionNode& node = items.at(static_cast<std::int64_t>(i));
    String scratch;
    CollectionEntry entry{std::nullopt, node.item.text(scratch)};
    if (node.has_key) entry.key.emplace(node.key());
    function(entry);
  }
}

}  // namespace kw::tool
