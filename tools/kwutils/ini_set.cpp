#include <algorithm>
#include <filesystem>

#include "base/compare_text.h"
#include "base/unicode.h"
#include "tool/failure.h"
#include "tool/ini_change.h"
#include "tool/ini_entries.h"
#include "tool/ini_options.h"
#include "tool/json_writer.h"

namespace kw::tool {
namespace {

void answer_change(Session& session, const IniOptions& options, const char* done) {
  if (!session.json) {
    session.out << done << " " << entry_text(options) << "\n";
    return;
  }
  JsonWriter json(session.out);
  json.begin_object();
  json.key("done").text(std::string_view(done));
  json.key("section").text(*options.section);
  json.key("key").text(options.key);
  json.end();
}

// The system's own functions do not tell why they fail.
std::string likely_reason(const IniOptions& options) {
  const std::filesystem::path folder = std::filesystem::path(from_utf8(options.path)).parent_path();
  return folder.empty() || std::filesystem::exists(folder)
             ? "the file or its folder is write-protected"
             : "there is no such folder";
}

[[noreturn]] void refuse_rewrite(const IniOptions& options, const Rewriting& rewriting) {
  fail("cannot rewrite " + in_quotes(options.path) + ": " +
       rewriting.failure(likely_reason(options)));
}

// Whether there is still something to remove.
bool is_left(const IniOptions& options, const IniChange& change) {
  const std::optional<std::string> content = content_if_any(options);
  return content_after(content, change) != content;
}

void rewrite(Session& session, const IniOptions& options, const IniChange& change) {
  Rewriting rewriting(session, options.rewrite, options.path);
  const std::u16string name = file_name(options);
  rewriting.back_up(name);
  if (!make_change(name, change) || (!change.value && is_left(options, change)))
    refuse_rewrite(options, rewriting);
}

bool holds_entry(const std::optional<std::string>& content, const IniChange& change) {
  const std::vector<IniSection> sections = ini_sections(content.value_or(""));
  const IniSection* section = find_section(sections, change.section);
  return section != nullptr &&
         std::any_of(section->entries.begin(), section->entries.end(),
                     [&](const IniEntry& entry) { return equal_text(entry.key, change.key); });
}

// Carries the change out, or shows it. `done` tells what it does.
ExitCode change_file(Session& session, const IniOptions& options, const IniChange& change,
                     const char* done) {
  const std::optional<std::string> before = content_if_any(options);
  const std::optional<std::string> after = content_after(before, change);
  if (options.rewrite.dry_run) {
    show_diff(session, options.path, before.value_or(""), after.value_or(""));
    return ExitCode::done;
  }
  if (before != after) rewrite(session, options, change);
  answer_change(session, options, done);
  return ExitCode::done;
}

ExitCode run_set(Session& session, const IniOptions& options) {
  const std::optional<std::string> content = content_if_any(options);
  const IniChange change = readable_change(
      content, {options.section_name(), options.key_name(), from_utf8(options.value)});
  const bool same = content_after(content, change) == content;
  const char* done = same ? "unchanged" : holds_entry(content, change) ? "replaced" : "added";
  return change_file(session, options, change, done);
}

ExitCode run_remove(Session& session, const IniOptions& options) {
  const std::optional<std::string> content = read_content(options);
  const IniChange change = {options.section_name(), options.key_name(), std::nullopt};
  if (content_after(content, change) == content) return not_found(session, options);
  return change_file(session, options, change, "removed");
}

}  // namespace

void add_ini_set(Arguments ini, Session& session) {
  auto [line, options] = add_command<IniOptions>(
      ini, session, "set", "Write a value",
      "kwutils ini set plant.ini Pump Flow 12.5\n\n"
      "File, section and key are made where they are missing. A value that would else lose blanks "
      "or\n"
      "quotes is written in quotes.",
      &run_set);
  add_entry(line, options);
  line.add_option("VALUE", options.value, "The value").required();
  add_rewrite_options(line, options.rewrite);
}

void add_ini_remove(Arguments ini, Session& session) {
  auto [line, options] =
      add_command<IniOptions>(ini, session, "remove", "Remove a key",
                              "kwutils ini remove plant.ini Pump Flow", &run_remove);
  add_entry(line, options);
  add_rewrite_options(line, options.rewrite);
}

}  // namespace kw::tool
