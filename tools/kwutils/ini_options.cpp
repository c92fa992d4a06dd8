#include "tool/ini_options.h"

#include "base/unicode.h"
#include "platform/files.h"
#include "platform/ini/ini_line.h"
#include "platform/profile.h"
#include "tool/failure.h"
#include "tool/notation.h"
#include "tool/read_file.h"

namespace kw::tool {
namespace {

std::u16string name_in(const std::string& word) {
  return std::u16string(ini::trim(std::u16string_view(from_utf8(word))));
}

}  // namespace

std::u16string IniOptions::section_name() const { return name_in(section.value_or("")); }

std::u16string IniOptions::key_name() const { return name_in(key); }

std::string entry_text(const IniOptions& options) {
  return "[" + *options.section + "] " + options.key;
}

std::string place_text(const IniOptions& options) {
  return entry_text(options) + " in " + in_quotes(options.path);
}

std::u16string file_name(const IniOptions& options) {
  const std::u16string given = from_utf8(options.path);
  std::string fault = page_fault(given);
  if (given.find_first_of(u"*?") != given.npos) fault = "'*' and '?' cannot stand in its name";
  if (!fault.empty()) fail("cannot use " + in_quotes(options.path) + ": " + fault);
  return working_on("cannot look for entries", options.path,
                    [&] { return platform::profile::stored_name(given); });
}

std::string read_content(const IniOptions& options) {
  return working_on("cannot look for entries", options.path,
                    [&] { return read_whole(*platform::files().open_input(file_name(options))); });
}

std::optional<std::string> content_if_any(const IniOptions& options) {
  const std::u16string name = file_name(options);
  const bool there = working_on("cannot look for entries", options.path,
                                [&] { return platform::files().exists(name); });
  return there ? std::optional(read_content(options)) : std::nullopt;
}

ExitCode not_found(Session& session, const IniOptions& options) {
  session.say("there is no " + place_text(options));
  return ExitCode::not_found;
}

void add_entry(Arguments line, IniOptions& options) {
  line.add_option("FILE", options.path, "The INI file").required();
  line.add_option("SECTION", options.section, "The section, in any case").required();
  line.add_option("KEY", options.key, "The key, in any case").required();
}

}  // namespace kw::tool
