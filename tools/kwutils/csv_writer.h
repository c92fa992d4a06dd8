// Comma-separated values, as read_csv reads them back.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kw::tool {

// One line with its CR LF. No value is an empty field, an empty value "" in quotes; other values
// stand in quotes where they hold a comma, a double quote, a line end or blanks at their ends.
std::string csv_line(const std::vector<std::optional<std::u16string>>& values);

}  // namespace kw::tool
