// How often two values occur in the entities of a type.
#pragma once

#include <cstdint>
#include <string_view>

namespace kw::store {

// An item and the value that is counted.
struct CountedItem {
  std::u16string_view keyword;
  std::u16string_view value;
};

// The counters; several of them may be one variable.
struct ValueCounts {
  std::int32_t& both;  // entities that hold the two values
  std::int32_t& key;   // occurrences
  std::int32_t& id;
};

// Adds what the file holds outside tables, to the letter. A word that is the keyword of `id` is not
// looked at as that of `key`.
void count_values(std::u16string_view file, std::u16string_view token, const CountedItem& key,
                  const CountedItem& id, ValueCounts counts);

}  // namespace kw::store
