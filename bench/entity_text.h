// The text of the entities in the generated files. Every entity is a function of its number alone,
// so that a benchmark can ask for the type, identifier and name of any of them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kw::bench {

// Goes up with every change of what is generated; files of another version are not reused.
inline constexpr int kTextVersion = 1;

// The three types: of six entities in a row three are nodes, two are links and one is an area.
inline constexpr std::string_view kHalfType = "NODE";
inline constexpr std::string_view kThirdType = "LINK";
inline constexpr std::string_view kSixthType = "AREA";

// The entity's opening word, for a number from 1.
std::string_view entity_type(std::size_t number);

// Its identifier ("N17"), unique in the file.
std::string entity_id(std::size_t number);

// Its name, unique in the file; may hold characters of code page 1252 above 127, no apostrophe.
std::string entity_name(std::size_t number);

// Appends the lines of the entity, each with its CR LF, among them now and then a comment or an
// empty line. The identifier and the name are the first two items of the opening line. Of six
// entities in a row three stand on one line, two on two lines and one on three to six lines, which
// is a table every other time.
void append_entity(std::string& out, std::size_t number);

// Appends an area of that number that embeds a table of `rows` rows, a row to a line.
void append_table_entity(std::string& out, std::size_t number, std::size_t rows);

}  // namespace kw::bench
