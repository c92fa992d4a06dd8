#include "tool/source_records.h"

#include <algorithm>
#include <utility>

#include "base/code_page.h"
#include "base/unicode.h"
#include "store/comment_keys.h"
#include "store/line_blank.h"
#include "tool/failure.h"

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

bool is_beyond_ascii(char byte) { return static_cast<unsigned char>(byte) >= 0x80; }

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// Text of the code page is hardly ever well-formed UTF-8 where it has accented letters.
bool looks_like_utf8(std::string_view content) {
  return std::any_of(content.begin(), content.end(), is_beyond_ascii) &&
         to_utf8(from_utf8(content)) == content;
}

// How the character of UTF-8 that begins the text is read.
std::string misread(std::string_view text) {
  std::size_t size = 1;
  while (size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80) ++size;
  const std::string_view character = text.substr(0, size);
  return in_quotes(character) + " reads as " + in_quotes(to_utf8(widen(character)));
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
  Cutter(std::string_view content, Findings& findings)
      : rest_(content), findings_(findings), is_utf8_(looks_like_utf8(content)) {}

  SourceText run() {
    check_mark();
    while (!rest_.empty()) take_line();
    check_last_line();
    lone_cr_.report(findings_);
    lone_lf_.report(findings_);
    return std::move(text_);
  }

 private:
  void add(std::size_t line, std::size_t column, const char* kind, std::string message) {
    findings_.push_back({line, column, kind, std::move(message)});
  }

  void check_mark() {
    const bool utf8 = rest_.starts_with(kUtf8Mark);
    const bool utf16 = rest_.starts_with("\xFF\xFE") || rest_.starts_with("\xFE\xFF");
    if (utf8)
      add(1, 1, "other-encoding",
          "the byte order mark of UTF-8 is a part of the first word for every reader");
    if (utf16) add(1, 1, "other-encoding", "the file is UTF-16, of which readers make no sense");
    is_utf8_ = is_utf8_ && !utf8;
  }

  // What stands on the last line of the file is handed out as a record, whatever it is.
  void check_last_line() {
    if (in_block_)
      add(block_line_, block_column_, "open-comment",
          comment_column_ == 0 || block_line_ == text_.lines.size()
              ? "the block comment never closes: it hides the rest of the file"
              : "the block comment never closes: it hides all but the last line of the file, which "
                "readers take for a record");
    else if (comment_column_ != 0)
      add(text_.lines.size(), comment_column_, "last-comment",
          "the last line is a comment: whatever rewrites the file writes it once more");
  }

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
    comment_column_ = 0;
    const auto first = std::find_if_not(line.begin(), line.end(), store::is_line_blank);
    if (first == line.end()) return;
    const auto last = std::find_if_not(line.rbegin(), line.rend(), store::is_line_blank).base();
    std::string record(first, last);
    std::replace_if(record.begin(), record.end(), store::is_line_blank, ' ');
    const auto column = static_cast<std::size_t>(first - line.begin()) + 1;
    if (is_comment(record, number, column)) {
      comment_column_ = column;
      return;
    }
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
    const auto found =
        std::find_if(record.begin(), record.end(), is_utf8_ ? is_beyond_ascii : is_undefined);
    if (found == record.end()) return;
    const auto at = static_cast<std::size_t>(found - record.begin());
    if (!is_utf8_)
      add(number, column + at, "undefined-byte",
          "this byte has no character in code page 1252: nothing that is typed finds it");
    else if (!std::exchange(utf8_is_told_, true))
      add(number, column + at, "other-encoding",
          "the file looks like UTF-8, but every reader takes it for code page 1252: " +
              misread(std::string_view(record).substr(at)));
  }

  std::string_view rest_;
  Findings& findings_;
  SourceText text_;
  bool is_utf8_;
  bool utf8_is_told_ = false;
  std::size_t comment_column_ = 0;  // of the line handled last; 0 where that is no comment
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
