// The tool's view of an entity file: UTF-8 names in, the library's answers out.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "kwutils/clsFileReadWrite.h"
#include "kwutils/collection.h"
#include "kwutils/string.h"
#include "tool/item_line.h"

namespace kw::tool {

// A file and a type of entities in it, as a command names them.
struct EntityFile {
  std::string path;
  std::string type;

  String name() const { return String::from_utf8(path); }
  String token() const { return String::from_utf8(type); }
};

// Fails as wrong usage where no entities of such a type can exist.
void check_type(const std::string& type);

// Whether a text holds an item, and its value.
std::optional<String> item_of(std::u16string_view entity, std::u16string_view keyword);

// The items of an entity's first line, up to its table, that look-ups find: each keyword once, in
// their order.
std::vector<Item> items_of(std::u16string_view entity);

// How many words stand on an entity's first line in front of its table.
std::size_t count_words(std::u16string_view entity);

// Hands each text of a collection to function(text), in their order.
template <class Function>
void for_each_text(const Collection& texts, Function&& function) {
  const std::int32_t count = texts.count();
  for (std::int32_t i = 1; i <= count; ++i) {
    const Variant item = texts.item(i);
    String scratch;
    function(item.text(scratch));
  }
}

}  // namespace kw::tool
