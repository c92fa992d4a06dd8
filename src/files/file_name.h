// The parts of a file name.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kw::files {

std::u16string ReverseText(std::u16string_view s);

// The position (from 1) of the last character of the last `sought` in `s`; -1 when there is none.
std::int32_t FindLastOccurrence(std::u16string_view s, std::u16string_view sought);

struct FileNameParts {
  std::u16string_view path;       // up to and including the last "\"; "" when there is none
  std::u16string_view name;       // up to the first "." that follows
  std::u16string_view extension;  // what follows that "."; "" when there is none
};

FileNameParts split_file_name(std::u16string_view file_name);

// What stands before the last "\" of a name that has no blanks around it; a root keeps its "\".
std::u16string_view folder_of(std::u16string_view file_name);

}  // namespace kw::files
