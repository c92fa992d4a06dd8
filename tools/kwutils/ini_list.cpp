#include "tool/ini_entries.h"
#include "tool/ini_options.h"
#include "tool/json_writer.h"

namespace kw::tool {
namespace {

void write_section(Session& session, JsonWriter& json, const IniSection& section) {
  const auto keys = static_cast<std::int64_t>(section.entries.size());
  if (!session.json) {
    session.out << section.name << "\t" << std::to_string(keys) << "\n";
    return;
  }
  json.begin_object();
  json.key("section").text(section.name);
  json.key("keys").number(keys);
  json.end();
}

void write_entry(Session& session, JsonWriter& json, const IniEntry& entry) {
  if (!session.json) {
    session.out << entry.key << "\t" << entry.value << "\n";
    return;
  }
  json.begin_object();
  json.key("key").text(entry.key);
  json.key("value").text(entry.value);
  json.end();
}

ExitCode run_list(Session& session, const IniOptions& options) {
  const std::vector<IniSection> sections = ini_sections(read_content(options));
  JsonWriter json(session.out);
  if (session.json) json.begin_lines();
  const IniSection* wanted =
      options.section ? find_section(sections, options.section_name()) : nullptr;
  if (!options.section)
    for (const IniSection& section : sections) write_section(session, json, section);
  if (wanted != nullptr)
    for (const IniEntry& entry : wanted->entries) write_entry(session, json, entry);
  if (session.json) json.end();
  const bool found = options.section ? wanted != nullptr : !sections.empty();
  return found ? ExitCode::done : ExitCode::not_found;
}

}  // namespace

void add_ini_list(Arguments ini, Session& session) {
  auto [line, options] = add_command<IniOptions>(
      ini, session, "list", "List the sections with how many keys they have, or those of a section",
      "kwutils ini list plant.ini\n"
      "  kwutils ini list plant.ini Pump\n\n"
      "What look-ups do not see is left out: the second section, or key, of the same name.",
      &run_list);
  line.add_option("FILE", options.path, "The INI file").required();
  line.add_option("SECTION", options.section, "The section, in any case");
}

}  // namespace kw::tool
