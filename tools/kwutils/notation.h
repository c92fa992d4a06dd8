// What the notation of entity files can carry. Each check gives the reason why it cannot (UTF-8),
// or
// "" when it can.
#pragma once

#include <string>
#include <string_view>

namespace kw::tool {

// The name of a type: one word, in any case.
std::string type_fault(std::u16string_view type);

// The keyword of an item.
std::string keyword_fault(std::u16string_view keyword);

// A value on its own; what stands beside it on the line is another matter.
std::string value_fault(std::u16string_view value);

// An identifier: looked up as it is, and therefore without apostrophes.
std::string identifier_fault(std::u16string_view identifier);

// A text of any form: only its characters matter.
std::string page_fault(std::u16string_view text);

// The keyword for a column of a table: its name with blanks as "_".
std::u16string keyword_of_column(std::u16string_view name);

}  // namespace kw::tool
