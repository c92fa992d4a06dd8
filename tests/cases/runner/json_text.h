// JSON as the case files use it: escapes are 16-bit code units, also where they are no characters.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace kw::cases {

using Json = nlohmann::json;

// Reads one case. Throws what the JSON reader throws, with its position in the line; also for a
// name that occurs twice in one object.
Json parse_line(std::string_view line);

// A JSON text as code units, and back.
std::u16string units(const Json& text);
Json json_text(std::u16string_view text);
// A JSON text whose characters U+0000 to U+00FF are bytes.
std::string bytes(const Json& text);

// For messages to the terminal.
std::string shown(std::u16string_view text);
std::string shown_bytes(std::string_view text);
std::string shown_json(const Json& value);

}  // namespace kw::cases
