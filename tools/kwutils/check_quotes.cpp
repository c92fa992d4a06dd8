#include "tool/check_quotes.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/unicode.h"
#include "parse/keyword.h"
#include "tool/failure.h"
#include "tool/source_words.h"

namespace kw::tool {
namespace {

void check_closing(const SourceBlock& block, std::size_t record,
                   const std::vector<SourceWord>& words, Findings& findings) {
  for (const SourceWord& word : words)
    if (!word.closed) {
      findings.push_back({block.records[record].line, block.column(record, word.begin),
                          "open-quote",
                          "this quote never closes on its line: the value reads as nothing"});
      return;
    }
}

// Where the value of a keyword begins in the line, as look-ups see it; npos where they see none.
std::size_t value_place(std::string_view line, std::string_view keyword) {
  const auto value = parse::keyword_value(line, keyword);
  return value ? static_cast<std::size_t>(value->data() - line.data()) : line.npos;
}

// The first word behind `from` that should be a keyword, but is none for look-ups.
const SourceWord* hidden_keyword(std::string_view line, const std::vector<SourceWord>& words,
                                 std::size_t from) {
  for (std::size_t i = from; i + 1 < words.size(); i += 2) {
    if (words[i].quote != 0 || words[i].text == "TBLE") return nullptr;
    if (value_place(line, words[i].text) == line.npos) return &words[i];
  }
  return nullptr;
}

// Keyword and value by turns: a value with an odd number of apostrophes hides the next keywords.
void check_hiding(const SourceBlock& block, std::size_t record,
                  const std::vector<SourceWord>& words, Findings& findings) {
  const std::string_view line = block.text(record);
  for (std::size_t i = 1; i < words.size(); i += 2) {
    const std::string_view whole = line.substr(words[i].begin, words[i].end - words[i].begin);
    if (std::count(whole.begin(), whole.end(), '\'') % 2 == 0) continue;
    const SourceWord* hidden = hidden_keyword(line, words, i + 1);
    if (hidden == nullptr || !words[i].closed) return;
    findings.push_back(
        {block.records[record].line, block.column(record, words[i].begin + whole.find('\'')),
         "hiding-apostrophe",
         "this apostrophe hides the item " + in_quotes(to_utf8(widen(hidden->text))) +
             " from look-ups: put the value last on the line"});
    return;
  }
}

}  // namespace

void check_quotes(const SourceBlock& block, Findings& findings) {
  for (std::size_t i = 0; i < block.records.size(); ++i) {
    const std::vector<SourceWord> words = cut_words(block.text(i));
    check_closing(block, i, words, findings);
    if (i == block.first_line()) check_hiding(block, i, words, findings);
  }
}

}  // namespace kw::tool
