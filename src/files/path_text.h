// Replacements within the text of a path.
#pragma once

#include <string>
#include <string_view>

namespace kw::files {

// Replaces `find` by `repl` until `s` holds none, each search beginning at the beginning:
// "a\\\\b" with "\" for "\\" gives "a\b". Never returns for an empty `find` in an `s` that is not
// empty.
std::u16string ReplaceAllInPath(std::u16string_view s, std::u16string_view find,
                                std::u16string_view repl);

// Takes every "\..\" out of `s`, the folder before it included: "C:\a\b\..\c" gives "C:\a\c". The
// search for that folder ends at position 2, so "C:\..\x" gives "C\x"; where the first reference
// stands there, on position 3, a message is shown first, once.
//
// Error 5 (invalid argument) for a reference that begins the path, 6 (overflow) for one beyond
// position 32767, there from the beginning or after earlier ones were taken out.
std::u16string ResolveParentReferences(std::u16string_view s);

// Tells the user: `before`, `path`, `after`.
void show_path(std::u16string_view before, std::u16string_view path, std::u16string_view after);

}  // namespace kw::files
