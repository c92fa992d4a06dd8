#include "tool/check_identifiers.h"

#include <optional>

#include "base/case_map.h"
#include "base/code_page.h"
#include "base/unicode.h"
#include "parse/keyword.h"
#include "parse/token.h"
#include "tool/failure.h"
#include "tool/source_words.h"

namespace kw::tool {
namespace {

constexpr std::string_view kKeyword = "id";

bool is_quote(char c) { return c == '\'' || c == '"'; }

class Checker {
 public:
  Checker(const SourceBlock& block, Findings& findings)
      : block_(block), findings_(findings), first_(block.first_line()) {}

  void run(KnownIdentifiers& known) {
    if (first_ >= block_.records.size()) return;
    const std::string_view line = block_.text(first_);
    const auto value = parse::keyword_value(line, kKeyword);
    if (!value) return find_invisible();
    const std::string_view id = parse::token_at(*value, 1);
    const auto at = static_cast<std::size_t>(value->data() - line.data());
    if (quote_is_open(line, at)) return;  // a finding of its own
    check_surroundings(line, at, id);
    check_twin(id, at, known);
  }

 private:
  void add(std::size_t record, std::size_t at, const char* kind, std::string message) {
    findings_.push_back(
        {block_.records[record].line, block_.column(record, at), kind, std::move(message)});
  }

  static bool quote_is_open(std::string_view line, std::size_t at) {
    return at < line.size() && is_quote(line[at]) && line.find(line[at], at + 1) == line.npos;
  }

  static std::string shown(std::string_view id) { return in_quotes(to_utf8(widen(id))); }

  // `at`: where the value begins.
  void check_surroundings(std::string_view line, std::size_t at, std::string_view id) {
    const bool last_line = first_ + 1 == block_.records.size();
    const bool quoted = at < line.size() && is_quote(line[at]);
    const std::size_t behind = at + id.size() + (quoted ? 2 : 0);
    if (!quoted && !last_line && behind >= line.size()) {
      add(first_, at, "unquoted-id",
          "the identifier " + shown(id) +
              " stands unquoted before a line end: readers of many entities take the next line "
              "for a part of it");
    } else if (first_ != 0) {
      add(first_, at, "late-id",
          "the identifier " + shown(id) +
              " stands in the line behind the type: WriteEntity and DeleteEntity do not find the "
              "entity");
    } else if (quoted && line[at] == '\'' && !stands_free(line, id)) {
      add(first_, at, "id-without-blanks",
          "the identifier " + shown(id) +
              " has no blank on both sides on this line: WriteEntity and DeleteEntity do not find "
              "the entity");
    }
  }

  // Whether the opening record holds what writers look for.
  bool stands_free(std::string_view line, std::string_view id) const {
    const std::string sought = " id '" + std::string(id) + "' ";
    return (" " + std::string(line)).find(sought) != std::string::npos;
  }

  void check_twin(std::string_view id, std::size_t at, KnownIdentifiers& known) {
    const auto [twin, is_new] =
        known.emplace(std::pair(block_.word, upper(widen(id))), block_.records[first_].line);
    if (!is_new)
      add(first_, at, "duplicate-id",
          "the identifier " + shown(id) + " stands in line " + std::to_string(twin->second) +
              " already: look-ups find that entity alone");
  }

  // An item "id" that no look-up sees, wherever it stands.
  void find_invisible() {
    if (find_glued(block_.text(first_))) return;
    for (std::size_t i = first_ + 1; i < block_.records.size(); ++i) {
      const std::string_view text = block_.text(i);
      const std::size_t table = text.find("TBLE");
      if (const auto at = keyword_place(text.substr(0, table))) return add_late(i, *at);
      if (table != text.npos) return;
    }
  }

  void add_late(std::size_t record, std::size_t at) {
    add(record, at, "late-id",
        "this identifier is not on the first line of the entity: look-ups do not see it");
  }

  // "id" with a quote directly before or behind it.
  bool find_glued(std::string_view line) {
    for (std::size_t at = line.find(kKeyword); at != line.npos; at = line.find(kKeyword, at + 1)) {
      const char before = at == 0 ? ' ' : line[at - 1];
      const char behind = at + 2 < line.size() ? line[at + 2] : ' ';
      const bool glued = (is_quote(before) && (behind == ' ' || is_quote(behind))) ||
                         (before == ' ' && is_quote(behind));
      if (!glued || inside_word(line, at)) continue;
      add(first_, at, "id-without-blanks",
          "this 'id' has no blank on both sides: look-ups do not see the identifier");
      return true;
    }
    return false;
  }

  // Whether the place lies within a quoted word.
  static bool inside_word(std::string_view line, std::size_t at) {
    for (const SourceWord& word : cut_words(line))
      if (word.quote != 0 && word.begin < at && at + 1 < word.end) return true;
    return false;
  }

  static std::optional<std::size_t> keyword_place(std::string_view text) {
    for (const SourceWord& word : cut_words(text))
      if (word.quote == 0 && word.text == kKeyword) return word.begin;
    return std::nullopt;
  }

  const SourceBlock& block_;
  Findings& findings_;
  std::size_t first_;
};

}  // namespace

void check_identifier(const SourceBlock& block, KnownIdentifiers& known, Findings& findings) {
  Checker(block, findings).run(known);
}

}  // namespace kw::tool
