#include "entity_text.h"

#include <array>
#include <cstdint>

#include "random.h"

namespace kw::bench {
namespace {

constexpr std::uint64_t kSeed = 20020917;
constexpr std::size_t kGroup = 6;

// Streams of random numbers, one for each thing that is drawn.
enum Stream : std::uint64_t { kTypes, kShapes, kNames, kLines, kTables, kStreams };

Random stream(Stream which, std::size_t number) { return {kSeed, number * kStreams + which}; }

enum class Shape { one_line, two_lines, more_lines };

// Bytes above 127 are characters of code page 1252.
constexpr std::array<std::string_view, 12> kPlaces = {
    "Inlet", "Outlet", "Main street", "M\xFChle", "Saint-\xC9tienne", "Pump hall",
    "Weir",  "Basin",  "North gate",  "Bridge",   "C\xF4te",          "Mill race"};

constexpr std::array<std::string_view, 8> kKeywords = {"x",  "y",  "ln", "dn",
                                                       "kb", "hg", "qz", "ar"};

constexpr std::array<std::string_view, 6> kRemarks = {
    "rm 'as built'", "mt 'concrete'", "mt 'PVC'", "rm 'survey 1998'", "st 'open'", "ow 'city'"};

constexpr std::array<std::string_view, 4> kLineComments = {
    "; measured again after the flood, values of the old map", "// sheet 14, left bank",
    "* to be surveyed: the crest of this weir and its gate", "   ; levels above datum"};

std::string decimal(Random& random) {
  return std::to_string(random.below(10000)) + '.' + std::to_string(random.between(1, 99));
}

void append_item(std::string& line, Random& random) {
  line += ' ';
  if (random.below(4) == 0) {
    line += random.pick(kRemarks);
  } else {
    line.append(random.pick(kKeywords)).append(1, ' ').append(decimal(random));
  }
}

// Adds items until the line holds at least `length` characters.
void fill(std::string& line, std::size_t length, Random& random) {
  while (line.size() < length) append_item(line, random);
}

std::string continuation(Random& random) {
  std::string line = random.below(50) == 0 ? "\t" : "    ";
  append_item(line, random);
  fill(line, random.between(43, 61), random);
  return line;
}

std::string table_row(Random& random) {
  std::string line = "  ";
  while (line.size() < 48) line.append(1, ' ').append(decimal(random));
  return line + " <";
}

std::string opening(std::string_view type, std::size_t number) {
  return std::string(type) + " id '" + entity_id(number) + "' nm '" + entity_name(number) + '\'';
}

std::string closing_word(std::string_view type) {
  std::string word(type);
  for (char& c : word) c = static_cast<char>(c | 0x20);
  return word;
}

void end_line(std::string& out, std::string_view line) { out.append(line).append("\r\n"); }

void append_rows(std::string& out, std::size_t rows, Random& random) {
  for (std::size_t i = 0; i < rows; ++i) end_line(out, table_row(random));
}

void append_block_comment(std::string& out, Random& random) {
  end_line(out, "/* sheet of the old survey; what follows was entered twice");
  end_line(out, "   and compared: " + decimal(random));
  end_line(out, "*/");
}

void append_interlude(std::string& out, Random& random) {
  switch (random.below(60)) {
    case 0:
      append_block_comment(out, random);
      break;
    case 1:
      end_line(out, "");
      break;
    case 2:
    case 3:
      end_line(out, random.pick(kLineComments));
      break;
    default:
      break;
  }
}

template <class T>
T drawn(Stream which, std::size_t number, std::array<T, kGroup> group) {
  Random random = stream(which, number / kGroup);
  random.shuffle(group);
  return group[number % kGroup];
}

Shape entity_shape(std::size_t number) {
  using enum Shape;
  return drawn<Shape>(kShapes, number,
                      {one_line, one_line, one_line, two_lines, two_lines, more_lines});
}

void append_body(std::string& out, std::size_t lines, std::string_view type, Random& random) {
  for (std::size_t i = 1; i < lines; ++i) end_line(out, continuation(random));
  end_line(out, continuation(random) + ' ' + closing_word(type));
}

void append_table(std::string& out, std::size_t rows, std::string_view type, Random& random) {
  append_rows(out, rows, random);
  end_line(out, "    tble " + closing_word(type));
}

}  // namespace

std::string_view entity_type(std::size_t number) {
  return drawn<std::string_view>(
      kTypes, number, {kHalfType, kHalfType, kHalfType, kThirdType, kThirdType, kSixthType});
}

std::string entity_id(std::size_t number) { return 'N' + std::to_string(number); }

std::string entity_name(std::size_t number) {
  Random random = stream(kNames, number);
  return std::string(random.pick(kPlaces)) + ' ' + std::to_string(number);
}

void append_entity(std::string& out, std::size_t number) {
  Random random = stream(kLines, number);
  append_interlude(out, random);
  const std::string_view type = entity_type(number);
  std::string first = opening(type, number);
  const Shape shape = entity_shape(number);
  const bool table = shape == Shape::more_lines && random.below(2) == 0;
  fill(first, random.between(38, 54), random);
  if (shape == Shape::one_line) return end_line(out, first + ' ' + closing_word(type));
  if (table) first += " TBLE";
  end_line(out, first);
  if (table) return append_table(out, random.between(1, 4), type, random);
  append_body(out, shape == Shape::two_lines ? 1 : random.between(2, 5), type, random);
}

void append_table_entity(std::string& out, std::size_t number, std::size_t rows) {
  Random random = stream(kTables, number);
  end_line(out, opening(kSixthType, number) + " TBLE");
  append_table(out, rows, kSixthType, random);
}

}  // namespace kw::bench
