// The generated entity files that the benchmarks read, and what is known about each of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

namespace kw::bench {

struct EntityFile {
  std::filesystem::path path;
  std::size_t entities = 0;
  std::size_t lines = 0;  // all of them, comments and empty lines included
  std::size_t bytes = 0;
  std::size_t half_type_count = 0;  // how many entities are of kHalfType
  std::uint64_t fingerprint = 0;    // of the contents
};

// The sizes at which everything is measured.
inline constexpr std::size_t kSmall = 1'000;
inline constexpr std::size_t kMedium = 100'000;
inline constexpr std::size_t kLarge = 2'000'000;

// The rows of the long table.
inline constexpr std::size_t kTableRows = 1'000'000;

// A file of so many entities in the folder, numbered from 1 (see entity_text.h). It is generated
// when the folder does not hold it, or holds something else under its name; throws
// std::system_error when it cannot be written.
EntityFile make_entity_file(const std::filesystem::path& folder, std::size_t entities);

// The same in the data folder, looked at once in a process. The reference stays valid.
const EntityFile& entity_file(std::size_t entities);

// Likewise a file of one entity, number 1, of kSixthType, whose table has so many rows.
const EntityFile& table_file(std::size_t rows);

// The folder of the files, made when it is missing.
std::filesystem::path data_folder();

}  // namespace kw::bench
