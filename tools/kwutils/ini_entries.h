// The entries of an INI file, as look-ups see them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kw::tool {

struct IniEntry {
  std::u16string key;
  std::u16string value;
};

struct IniSection {
  std::u16string name;  // "": the lines before the first header
  std::vector<IniEntry> entries;
};

// What the content of a file holds, in its order: the first section of each name, in it the first
// entry of each name, where that has a "=".
std::vector<IniSection> ini_sections(std::string_view content);

// The section of that name in any case, or null.
const IniSection* find_section(const std::vector<IniSection>& sections, std::u16string_view name);

}  // namespace kw::tool
