#include "tool/source_blocks.h"

#include "base/case_map.h"
#include "base/code_page.h"
#include "base/unicode.h"
#include "store/closing_word.h"
#include "store/record_word.h"
#include "tool/failure.h"

namespace kw::tool {
namespace {

constexpr std::size_t kHeaderLetters = 6;

std::string lower_word(std::string_view word) {
  std::string result(word);
  for (char& c : result) c = static_cast<char>(lower_byte(static_cast<unsigned char>(c)));
  return result;
}

class Cutter {
 public:
  Cutter(const SourceText& source, Findings& findings)
      : records_(source.records), findings_(findings) {}

  std::vector<SourceBlock> run() {
    for (std::size_t at = 0; at < records_.size();) {
      const SourceBlock block = block_from(at);
      const bool header = at == 0 && is_header(block);
      if (!header) check(block, at == 0);
      at += header ? 1 : block.records.size();
      if (!header) blocks_.push_back(block);
    }
    return std::move(blocks_);
  }

 private:
  SourceBlock block_from(std::size_t at) {
    const std::string& first = records_[at].text;
    const store::RecordWord opening = store::take_first_word(first);
    SourceBlock block{std::string(opening.word),
                      lower_word(opening.word),
                      first.size() - opening.rest.size(),
                      {},
                      false};
    closing_.follow(opening.word);
    std::size_t end = at + 1;
    block.closed = closing_.closes(opening.rest);
    while (!block.closed && end < records_.size())
      block.closed = closing_.closes(records_[end++].text);
    block.records = std::span(records_).subspan(at, end - at);
    return block;
  }

  // A first record of six letters that nothing closes.
  static bool is_header(const SourceBlock& block) {
    return block.word.size() == kHeaderLetters && !block.closed;
  }

  void check(const SourceBlock& block, bool first) {
    if (!block.closed)
      add(block, 0, "open-block",
          "the block " + widened(block.word) + " never closes with " +
              in_quotes(widened(block.closing)) + ": it hides the rest of the file");
    if (block.closed) {
      check_case(block);
      check_tail(block);
      check_inside(block);
    }
    if (block.word.size() == kHeaderLetters && block.records.size() > 1)
      add(block, 0, "six-letters",
          first ? "the first word of the file has six letters: readers of other types take this "
                  "line for a "
                  "header and its other lines for blocks of their own"
                : "a first word of six letters: GetEntities passes over this line alone and takes "
                  "the other lines for blocks of their own");
  }

  void check_case(const SourceBlock& block) {
    const std::u16string word = widen(block.word);
    if (word != upper(word))
      add(block, 0, "lower-case-type",
          "the type " + widened(block.word) +
              " is not in upper case: no look-up finds what it opens");
  }

  // Looks for what should have been an entity of its own.
  void check_inside(const SourceBlock& block) {
    bool in_table = holds(block.text(0), "TBLE") && !holds(block.text(0), "tble");
    for (std::size_t i = 1; i < block.records.size(); ++i) {
      const std::string_view text = block.text(i);
      if (!in_table && store::take_first_word(text).word == block.word)
        return add(block, i, "inner-block",
                   "the block " + widened(block.word) + " of line " +
                       std::to_string(block.records[0].line) +
                       " is still open here: look-ups do not see this one");
      in_table = (in_table || holds(text, "TBLE")) && !holds(text, "tble");
    }
  }

  static bool holds(std::string_view text, std::string_view mark) {
    return text.find(mark) != text.npos;
  }

  void check_tail(const SourceBlock& block) {
    const std::size_t last = block.records.size() - 1;
    const std::string_view text = block.text(last);
    const std::size_t tail = text.size() - block.closing.size();
    if (tail == 0 || text[tail - 1] == ' ') return;
    const std::size_t blank = text.find_last_of(' ', tail - 1);
    const std::size_t word = blank == text.npos ? 0 : blank + 1;
    findings_.push_back({block.records[last].line, block.column(last, word), "tail-closes",
                         in_quotes(widened(text.substr(word))) + " ends in " +
                             in_quotes(widened(block.closing)) + " and closes the block " +
                             widened(block.word) + " of line " +
                             std::to_string(block.records[0].line)});
  }

  void add(const SourceBlock& block, std::size_t record, const char* kind, std::string message) {
    findings_.push_back(
        {block.records[record].line, block.records[record].column, kind, std::move(message)});
  }

  static std::string widened(std::string_view bytes) { return to_utf8(widen(bytes)); }

  const std::vector<SourceRecord>& records_;
  Findings& findings_;
  store::ClosingWord closing_;
  std::vector<SourceBlock> blocks_;
};

}  // namespace

std::vector<SourceBlock> cut_blocks(const SourceText& source, Findings& findings) {
  return Cutter(source, findings).run();
}

}  // namespace kw::tool
