// The parts of a file name.
#pragma once

#include <string_view>

namespace kw::files {

struct FileNameParts {
  std::u16string_view path;       // up to and including the last "\"; "" when there is none
  std::u16string_view name;       // up to the first "." that follows
  std::u16string_view extension;  // what follows that "."; "" when there is none
};

FileNameParts split_file_name(std::u16string_view file_name) noexcept;

// What stands before the last "\" of a name that has no blanks around it; a root keeps its "\".
std::u16string_view folder_of(std::u16string_view file_name) noexcept;

}  // namespace kw::files
