// The nearest spelling that a file in code page 1252 can hold.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kw::tool {

// `text` with each character that the code page lacks replaced by what comes nearest ("ł" by "l",
// "ế" by "ê"), tabs, no-break spaces and line ends by blanks, and no blanks at its ends. Nothing
// when a character has no such spelling (a letter of another script), or nothing would be left.
std::optional<std::u16string> nearest_spelling(std::u16string_view text);

// The same text with typographic apostrophes instead of plain ones.
std::u16string without_apostrophes(std::u16string text);

}  // namespace kw::tool
