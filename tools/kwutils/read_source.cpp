#include <cstdio>

#include "tool/failure.h"
#include "tool/read_file.h"
#include "tool/source_table.h"

namespace kw::tool {
namespace {

constexpr std::size_t kBlock = 256 * 1024;

std::string read_standard_input() {
  std::string text;
  std::string block(kBlock, '\0');
  while (const std::size_t size = std::fread(block.data(), 1, block.size(), stdin))
    text.append(block, 0, size);
  if (std::ferror(stdin) != 0) fail("cannot read standard input");
  return text;
}

std::string read_all(const std::string& name) {
  if (name == "-") return read_standard_input();
  try {
    return read_file(name);
  } catch (const Error& error) {
    fail("cannot read " + in_quotes(name) + ": " + reason(error, name));
  }
}

SourceFormat format_of(std::string_view name, std::string_view text) {
  if (name.ends_with(".json")) return SourceFormat::json;
  if (name.ends_with(".csv")) return SourceFormat::csv;
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  const bool bracket = first != text.npos && (text[first] == '[' || text[first] == '{');
  return bracket ? SourceFormat::json : SourceFormat::csv;
}

}  // namespace

SourceTable read_source(const std::string& file, SourceFormat format) {
  const std::string text = read_all(file);
  const std::string name = file == "-" ? "standard input" : file;
  if (format == SourceFormat::automatic) format = format_of(file, text);
  return format == SourceFormat::json ? read_json(text, name) : read_csv(text, name);
}

}  // namespace kw::tool
