// UTF-8 to UTF-16 and back.
//
// Every 16-bit text survives the way through UTF-8: a surrogate without its partner is written as
// the three bytes of its number and read back from them, although strict UTF-8 knows no such
// sequence. Two such sequences in a row that make a pair are read as the pair. Any other ill-formed
// byte sequence is read as U+FFFD, one for each longest beginning of a well-formed sequence.
#pragma once

#include <string>
#include <string_view>

namespace kw {

std::u16string from_utf8(std::string_view bytes);
std::string to_utf8(std::u16string_view text);

}  // namespace kw
