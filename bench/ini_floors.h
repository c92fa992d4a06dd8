// The floors of INI files: the least work for one value, written without the library.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kw::bench {

// Reads the file whole and looks at the beginning of each line, found with memchr, until it has the
// section and in it the key. Only exact names in lines without blanks are found. Throws
// std::system_error when a file operation fails.
std::string floor_ini_get(const std::filesystem::path& file, std::string_view section,
                          std::string_view key);

// Reads the file whole, writes it to a second one beside it, flushes that to the disk if asked to
// and puts it in the first one's place.
void floor_ini_rewrite(const std::filesystem::path& file, bool flush);

}  // namespace kw::bench
