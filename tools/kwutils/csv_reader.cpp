#include <algorithm>

#include "base/unicode.h"
#include "tool/failure.h"
#include "tool/source_table.h"

namespace kw::tool {
namespace {

struct Field {
  std::string text;
  bool quoted = false;
  bool malformed = false;  // text follows the closing quote
};

struct Record {
  std::vector<Field> fields;
  std::size_t line = 0;
};

class Reader {
 public:
  Reader(std::string_view text, std::string_view file) : text_(text), file_(file) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text_.starts_with(kByteOrderMark)) text_.remove_prefix(kByteOrderMark.size());
  }

  bool at_end() const { return at_ == text_.size(); }

  Record next() {
    Record record;
    record.line = line_;
    do record.fields.push_back(field());
    while (take(','));
    take_line_end();
    return record;
  }

 private:
  bool take(char c) {
    if (at_end() || text_[at_] != c) return false;
    ++at_;
    return true;
  }

  void take_line_end() {
    if (at_end()) return;
    take('\r');
    take('\n');
    ++line_;
  }

  Field field() {
    Field result;
    result.quoted = take('"');
    if (result.quoted) quoted_part(result.text);
    const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
    result.malformed = result.quoted && end != at_;
    result.text += text_.substr(at_, end - at_);
    at_ = end;
    return result;
  }

  // Up to and including the closing quote.
  void quoted_part(std::string& to) {
    const std::size_t opening_line = line_;
    for (;;) {
      const std::size_t quote = text_.find('"', at_);
      if (quote == text_.npos)
        fail("cannot read " + in_quotes(file_) + ": the quote that opens in line " +
             std::to_string(opening_line) + " is never closed");
      const std::string_view part = text_.substr(at_, quote - at_);
      line_ += static_cast<std::size_t>(std::count(part.begin(), part.end(), '\n'));
      to += part;
      at_ = quote + 1;
      if (!take('"')) return;
      to += '"';
    }
  }

  std::string_view text_;
  std::string_view file_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
};

std::string count_text(std::size_t count, const char* what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string fault_of(const Record& record, std::size_t columns) {
  if (record.fields.size() == 1 && record.fields[0].text.empty() && columns > 1)
    return "the line is empty";
  if (record.fields.size() != columns)
    return "it has " + count_text(record.fields.size(), "field") + ", the header " +
           std::to_string(columns);
  for (const Field& field : record.fields)
    if (field.malformed) return "text follows the closing quote of a field";
  for (const Field& field : record.fields)
    if (to_utf8(from_utf8(field.text)) != field.text) return "it is not UTF-8";
  return "";
}

SourceRow row_of(const Record& record, std::size_t columns) {
  SourceRow row;
  row.line = record.line;
  row.fault = fault_of(record, columns);
  for (const Field& field : record.fields) {
    const bool nothing = field.text.empty() && !field.quoted;
    row.values.push_back(nothing ? std::nullopt : std::optional(from_utf8(field.text)));
  }
  return row;
}

}  // namespace

SourceTable read_csv(std::string_view text, std::string_view file) {
  Reader reader(text, file);
  if (reader.at_end()) fail("cannot read " + in_quotes(file) + ": it has no header line");
  SourceTable table;
  for (const Field& name : reader.next().fields) table.columns.push_back(from_utf8(name.text));
  while (!reader.at_end()) {
    table.rows.push_back(row_of(reader.next(), table.columns.size()));
    table.rows.back().number = table.rows.size();
  }
  return table;
}

}  // namespace kw::tool
