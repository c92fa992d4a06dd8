// A caller's file name as this system's calls take it.
#pragma once

#include <string>
#include <string_view>

namespace kw::platform {

struct FileName {
  std::string given;  // as the caller wrote it, for messages (UTF-8)
  std::string path;   // for the system
};

// Rewrites Windows text as files.h says. Error 52 for an empty name and one with NUL, 76 for a
// drive other than C:.
FileName native_name(std::u16string_view name);

// The folder that holds the thing of this path: "." where the path names none.
std::string folder_of(const std::string& path);

// The path with its last component, as long as that is a symbolic link, replaced by what the link
// points to. The end need not exist.
FileName follow_links(FileName name);

}  // namespace kw::platform
