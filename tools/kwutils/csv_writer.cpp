#include "tool/csv_writer.h"

#include "base/unicode.h"

namespace kw::tool {
namespace {

bool needs_quotes(std::u16string_view value) {
  return value.empty() || value.find_first_of(u",\"\r\n") != value.npos || value.front() == u' ' ||
         value.back() == u' ';
}

void append_quoted(std::string_view value, std::string& to) {
  to += '"';
  for (const char c : value) {
    if (c == '"') to += '"';
    to += c;
  }
  to += '"';
}

}  // namespace

std::string csv_line(const std::vector<std::optional<std::u16string>>& values) {
  std::string line;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i != 0) line += ',';
    if (!values[i]) continue;
    if (needs_quotes(*values[i]))
      append_quoted(to_utf8(*values[i]), line);
    else
      line += to_utf8(*values[i]);
  }
  return line + "\r\n";
}

}  // namespace kw::tool
