// What the automation library's file is called on this system: with the number of its interface, by
// which it is there without the files for development, too.
#pragma once

namespace kw::platform {

inline constexpr const char* kLibraryFile = "libkwutils.so.1";

}  // namespace kw::platform
