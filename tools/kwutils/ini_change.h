// Changes of INI files, tried out before they are made.
#pragma once

#include <optional>
#include <string>

namespace kw::tool {

struct IniChange {
  std::u16string section;
  std::u16string key;
  std::optional<std::u16string> value;  // nothing: the entry goes
};

// The content that a file has after the change; nothing stands for a file that is missing. Of a
// removal: once no section of the name has the entry any more.
std::optional<std::string> content_after(const std::optional<std::string>& content,
                                         const IniChange& change);

// What the file holds under the change's names, as look-ups see it: "" where there is nothing.
std::u16string value_in(const std::optional<std::string>& content, const IniChange& change);

// The change, with its value in quotes where it needs them to be read back. Fails as wrong usage
// where it is read back in no way.
IniChange readable_change(const std::optional<std::string>& content, IniChange change);

// Makes the change in the file itself. False when it cannot be made.
bool make_change(std::u16string_view file, const IniChange& change);

}  // namespace kw::tool
