// Identifiers that are free.
#pragma once

#include <string_view>

#include "kwutils/string.h"

namespace kw::store {

// `wanted`, as it stands, when it is not blank and no entity of the type has that identifier
// (compared as text). Otherwise the largest numeric identifier plus one; "1" when there is none
// above -999. Fractions round to the nearest whole number, halves to the even one. Error 6 when a
// numeric identifier, or the result, does not fit into 32 bits; errors of reading the file.
String free_identifier(std::u16string_view file, std::u16string_view token,
                       std::u16string_view wanted);

}  // namespace kw::store
