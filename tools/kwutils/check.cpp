#include <algorithm>

#include "base/code_page.h"
#include "base/unicode.h"
#include "platform/files.h"
#include "tool/check_entities.h"
#include "tool/command.h"
#include "tool/failure.h"
#include "tool/json_writer.h"
#include "tool/read_file.h"
#include "tool/source_blocks.h"
#include "tool/source_records.h"

namespace kw::tool {
namespace {

struct CheckOptions {
  std::string path;
};

Findings sorted(Findings findings) {
  std::stable_sort(findings.begin(), findings.end(), [](const Finding& left, const Finding& right) {
    return std::pair(left.line, left.column) < std::pair(right.line, right.column);
  });
  return findings;
}

// The line as it is shown, one column for each character.
std::u16string shown_line(const SourceText& source, std::size_t number) {
  std::u16string line = widen(source.lines[number - 1]);
  for (char16_t& unit : line)
    if (unit < u' ' || (unit >= 0x7F && unit <= 0xA0)) unit = u' ';
  return line;
}

// The part of a line around a place in it, with "…" for what is cut off, and the place in that
// part.
std::pair<std::u16string, std::size_t> part_around(std::u16string line, std::size_t place) {
  constexpr std::size_t kLongest = 160;
  if (line.size() <= kLongest) return {std::move(line), place};
  const std::size_t begin = std::min(place - std::min(place, kLongest / 2), line.size() - kLongest);
  std::u16string part = line.substr(begin, kLongest);
  if (begin != 0) part.front() = u'…';
  if (begin + kLongest < line.size()) part.back() = u'…';
  return {std::move(part), place - begin};
}

void write_text(Output& out, const std::string& path, const SourceText& source,
                const Finding& finding) {
  const auto [line, place] = part_around(shown_line(source, finding.line), finding.column - 1);
  out << path << ":" << std::to_string(finding.line) << ":" << std::to_string(finding.column)
      << ": " << finding.message << "\n"
      << line << "\n"
      << std::string(place, ' ') << "^\n";
}

void write_json(JsonWriter& json, const std::string& path, const SourceText& source,
                const Finding& finding) {
  json.begin_object();
  json.key("file").text(path);
  json.key("line").number(static_cast<std::int64_t>(finding.line));
  json.key("column").number(static_cast<std::int64_t>(finding.column));
  json.key("kind").text(std::string_view(finding.kind));
  json.key("message").text(finding.message);
  json.key("text").text(widen(source.lines[finding.line - 1]));
  json.end();
}

std::string summary(std::size_t count, std::size_t entities) {
  const std::string found = count == 0   ? "no findings"
                            : count == 1 ? "1 finding"
                                         : std::to_string(count) + " findings";
  return found + " in " + std::to_string(entities) + (entities == 1 ? " block" : " blocks");
}

ExitCode run_check(Session& session, const CheckOptions& options) {
  const std::string content = working_on("cannot check the notation", options.path,
                                         [&] { return read_file(options.path); });
  Findings findings;
  const SourceText source = cut_source(content, findings);
  const std::vector<SourceBlock> blocks = cut_blocks(source, findings);
  check_entities(blocks, findings, &session.progress);
  findings = sorted(std::move(findings));
  JsonWriter json(session.out);
  if (session.json) json.begin_lines();
  for (const Finding& finding : findings) {
    if (session.json)
      write_json(json, options.path, source, finding);
    else
      write_text(session.out, options.path, source, finding);
  }
  if (session.json)
    json.end();
  else
    session.out << options.path << ": " << summary(findings.size(), blocks.size()) << "\n";
  return findings.empty() ? ExitCode::done : ExitCode::not_found;
}

}  // namespace

void add_check(Arguments app, Session& session) {
  auto [line, options] = add_command<CheckOptions>(
      app, session, "check", "Report what would surprise a reader of a file",
      "kwutils check plant.ent\n\n"
      "Each finding is shown as file:line:column: message, with the line and a caret. Exit status: "
      "0\n"
      "clean, 1 findings.",
      &run_check);
  line.add_option("FILE", options.path, "The entity file").required();
}

}  // namespace kw::tool
