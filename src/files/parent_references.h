// References to a parent folder within a path.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace kw::files {

// Takes every "\..\" out of `path`, the folder before it included: "C:\a\b\..\c" gives "C:\a\c".
// The search for that folder ends at position 2, so "C:\..\x" gives "C\x"; where the first
// reference stands there, on position 3, `show_illegal` is called first, once.
//
// Error 5 (invalid argument) for a reference that begins the path, 6 (overflow) for one beyond
// position 32767, there from the beginning or after earlier ones were taken out.
std::u16string resolve_parent_references(std::u16string_view path,
                                         const std::function<void()>& show_illegal);

}  // namespace kw::files
