// The identifier of an entity: the token behind its first token "id".
#pragma once

#include <optional>
#include <string_view>

namespace kw::store {

// "" when there is no such token, or an empty one in front of it. Line ends are ordinary characters
// here: an "id" at the beginning of a later line is no token of its own.
std::string_view identifier_of(std::string_view entity);

// The same, told by the beginning of the text alone, where it is one as most entities have it:
// id 'identifier'. Nothing where more must be read.
std::optional<std::string_view> leading_identifier(std::string_view beginning);

}  // namespace kw::store
