// INI files to measure with.
#pragma once

#include <cstddef>
#include <string>

namespace kw::bench {

// The key and the section of entry `number`, from 0.
std::string ini_key(std::size_t number);
std::string ini_section(std::size_t number, std::size_t per_section);

// A file of `entries` entries in sections of `per_section`, with a blank line between sections and
// a value of a dozen bytes for each: the same file every time.
std::string ini_text(std::size_t entries, std::size_t per_section);

}  // namespace kw::bench
