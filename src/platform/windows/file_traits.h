// What a name keeps when the file under it is replaced: attributes, time of creation, access
// rights.
#pragma once

#include <vector>

#include "platform/windows/file_name.h"
#include "platform/windows/system.h"

namespace kw::platform {

struct FileTraits {
  DWORD attributes = 0;
  LARGE_INTEGER created = {};
  std::vector<char> access;  // a security descriptor; empty where the file system has none
};

// Opens a file, folder or device to look at it, whatever others do with it meanwhile; empty on
// failure, with the system's code set. A link is followed.
Handle open_for_facts(const std::u16string& path);

FileTraits traits_of(const Handle& file);
// Gives them to a file that is open for writing and for changing its rights.
void set_traits(const Handle& file, const FileTraits& traits, const FileName& name);

// Whether both names mean one file or folder that is there. The left one is looked at first.
bool is_one_file(const std::u16string& left, const std::u16string& right);

// Whether the open thing stands for another file (a symbolic link, a mounted folder).
bool is_link(const Handle& file);

}  // namespace kw::platform
