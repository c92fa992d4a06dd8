// Replacement that starts again at the beginning after every step.
#pragma once

#include <string>
#include <string_view>

namespace kw::text {

// Replaces the first `sought` in `text` by `by` until the text holds none. Replacements cascade:
// "a////b" with "/" for "//" gives "a/b". Takes time in proportion to `text` and to what is
// inserted.
//
// Where every step leaves another `sought` ("aa" for "a", "a" for "a", and whatever stands for an
// empty `sought` in a text that is not empty) this does not end: it throws std::bad_alloc or
// std::length_error once the growing text cannot be held, and a text that does not grow keeps it
// busy for ever.
std::u16string replace_until_gone(std::u16string_view text, std::u16string_view sought,
                                  std::u16string_view by);

}  // namespace kw::text
