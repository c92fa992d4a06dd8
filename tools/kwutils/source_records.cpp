#include "tool/source_records.h"

#include <algorithm>

#include "store/comment_keys.h"
#include "store/line_blank.h"

namespace kw::tool {
namespace {

// Bytes that code page 1252 leaves undefined.
bool is_undefined(char byte) {
  switch (static_cast<unsigned char>(byte)) {
    case 0x81:
    case 0x8D:
    case 0x8F:
    case 0x90:
    case 0x9D:
      return true;
    default:
      return false;
  }
}

// Lines that end in the same unusual way.
struct LoneEnds {
  const char* name;
  std::size_t count = 0;
  std::size_t line = 0;
  std::size_t column = 0;

  void add(std::size_t at_line, std::size_t at_column) {
    if (++count != 1) return;
    line = at_line;
    column = at_column;
  }

  void report(Findings& findings) const {
    if (count == 0) return;
    std::string message = std::string("a lone ") + name +
                          " ends the line here; editors may show it otherwise, and what follows is "
                          "not on the first line of the entity";
    if (count > 1) message += " (and in " + std::to_string(count - 1) + " more places)";
    findings.push_back({line, column, "lone-line-end", std::move(message)});
  }
};

class Cutter {
 public:
  Cutter(std::string_view content, Findings& findings) : rest_(content), findings_(findings) {}

  SourceText run() {
    while (!rest_.empty()) take_line();
    if (in_block_)
      findings_.push_back({block_line_, block_column_, "open-comment",
                           "the block comment never closes: it hides the rest of the file"});
    lone_cr_.report(findings_);
    lone_lf_.report(findings_);
    return std::move(text_);
  }

 private:
  void take_line() {
    const std::size_t end = std::min(rest_.find_first_of("\r\n"), rest_.size());
    const std::string_view line = rest_.substr(0, end);
    text_.lines.push_back(line);
    rest_.remove_prefix(end);
    take_line_end(line.size() + 1);
    handle(line, text_.lines.size());
  }

  void take_line_end(std::size_t column) {
    if (rest_.empty()) return;
    const bool cr = rest_.front() == '\r';
    const bool pair = rest_.starts_with("\r\n");
    rest_.remove_prefix(pair ? 2 : 1);
    if (!pair) (cr ? lone_cr_ : lone_lf_).add(text_.lines.size(), column);
  }

  void handle(std::string_view line, std::size_t number) {
    const auto first = std::find_if_not(line.begin(), line.end(), store::is_line_blank);
    if (first == line.end()) return;
    const auto last = std::find_if_not(line.rbegin(), line.rend(), store::is_line_blank).base();
    std::string record(first, last);
    std::replace_if(record.begin(), record.end(), store::is_line_blank, ' ');
    const auto column = static_cast<std::size_t>(first - line.begin()) + 1;
    if (is_comment(record, number, column)) return;
    check_bytes(record, number, column);
    text_.records.push_back({std::move(record), number, column});
  }

  bool is_comment(std::string_view record, std::size_t number, std::size_t column) {
    const bool closes = record.find(store::kBlockEnd) != record.npos;
    if (in_block_) {
      in_block_ = !closes;
      return true;
    }
    const store::CommentKind kind = store::comment_kind(record);
    if (kind != store::CommentKind::block) return kind != store::CommentKind::none;
    in_block_ = !closes;
    block_line_ = number;
    block_column_ = column;
    return true;
  }

  void check_bytes(std::string_view record, std::size_t number, std::size_t column) {
    const auto found = std::find_if(record.begin(), record.end(), is_undefined);
    if (found == record.end()) return;
    findings_.push_back(
        {number, column + static_cast<std::size_t>(found - record.begin()), "undefined-byte",
         "this byte has no character in code page 1252: nothing that is typed finds "
         "it"});
  }

  std::string_view rest_;
  Findings& findings_;
  SourceText text_;
  bool in_block_ = false;
  std::size_t block_line_ = 0;
  std::size_t block_column_ = 0;
  LoneEnds lone_cr_{"CR"};
  LoneEnds lone_lf_{"LF"};
};

}  // namespace

SourceText cut_source(std::string_view content, Findings& findings) {
  return Cutter(content, findings).run();
}

}  // namespace kw::tool
