#include "tool/read_file.h"
#include "tool/source_table.h"

namespace kw::tool {
namespace {

SourceFormat format_of(std::string_view name, std::string_view text) {
  if (name.ends_with(".json")) return SourceFormat::json;
  if (name.ends_with(".csv")) return SourceFormat::csv;
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  const bool bracket = first != text.npos && (text[first] == '[' || text[first] == '{');
  return bracket ? SourceFormat::json : SourceFormat::csv;
}

}  // namespace

SourceTable read_source(const std::string& file, SourceFormat format) {
  const std::string text = read_text(file);
  const std::string name = source_name(file);
  if (format == SourceFormat::automatic) format = format_of(file, text);
  return format == SourceFormat::json ? read_json(text, name) : read_csv(text, name);
}

}  // namespace kw::tool
