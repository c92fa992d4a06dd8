// A caller's file name as this system's calls take it.
#pragma once

#include <string>
#include <string_view>

namespace kw::platform {

struct FileName {
  std::string given;    // as the caller wrote it, for messages (UTF-8)
  std::u16string path;  // for the system
};

// Error 52 for an empty name and one with NUL. A path that is longer than the system takes from
// ordinary programs is given in full, in the form that has no limit.
FileName native_name(std::u16string_view name);

// The path in full: with its drive or server, without "." and "..".
std::u16string full_path(const std::u16string& path);

}  // namespace kw::platform
