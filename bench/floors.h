// The floors: the least work that any program must do for what a method of the store promises,
// written with care and without the library. A benchmark's time is read as a multiple of its floor
// in the same run.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "seen.h"

namespace kw::bench {

// F1: reads the file in pieces of 1 MiB, finds the line ends, trims each line and looks at its
// first and last word. Every function here throws std::system_error when a file operation fails.
Seen floor_read(const std::filesystem::path& file);

enum class Flush { no, yes };

// F2: F1 that also writes every line, trimmed, to a second file beside the first, flushes it to the
// disk if asked to, and puts it in the first one's place.
Seen floor_rewrite(const std::filesystem::path& file, Flush flush);

// F1 that also writes the rows of the tables of one type's entities, trimmed, to a second file,
// without a flush. Gives how many there were.
std::size_t floor_spill_rows(const std::filesystem::path& file, std::string_view type,
                             const std::filesystem::path& second);

// One delivered 16-bit string.
struct Text {
  std::unique_ptr<char16_t[]> characters;
  std::size_t length = 0;
};

// What a method hands to its caller: the values, and the keys under which they can be found again.
struct Delivered {
  Seen seen;
  std::vector<Text> values;
  std::unordered_map<std::u16string, std::size_t> keys;
  std::vector<Text> names;
  std::unordered_map<std::u16string, std::size_t> name_keys;
};

// F3: F1 plus, for each value that the method delivers, one 16-bit string allocated and filled, and
// for keyed results one insertion into a hash table. Each takes the entities of one type, whose
// identifier and name are the first items of the opening line.
enum class Values {
  entities,        // each entity's text
  keyed_entities,  // the same, keyed by identifier
  ids,             // the identifiers, each its own key
  ids_and_names,   // the identifiers and the names, both keyed by identifier
  rows,            // the rows of the entities' tables
};
Delivered floor_deliver(const std::filesystem::path& file, std::string_view type, Values values);

}  // namespace kw::bench
