// What the automation library's file is called on this system.
#pragma once

namespace kw::platform {

inline constexpr const char* kLibraryFile = "KWUTILS.DLL";

}  // namespace kw::platform
