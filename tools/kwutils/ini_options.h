// What the commands on INI files share.
#pragma once

#include <optional>
#include <string>

#include "tool/command.h"
#include "tool/rewriting.h"

namespace kw::tool {

struct IniOptions {
  std::string path;
  std::optional<std::string> section;
  std::string key;
  std::string value;
  std::string type;
  std::optional<std::string> fallback;
  RewriteOptions rewrite;

  // Blanks around names do not count.
  std::u16string section_name() const;
  std::u16string key_name() const;
};

// For messages: "[Pump] Flow", and where it is.
std::string entry_text(const IniOptions& options);
std::string place_text(const IniOptions& options);

// The file as the library finds it: its name is matched in any case. Fails (exit status 3) for a
// name that the profile functions cannot take.
std::u16string file_name(const IniOptions& options);

// The whole file. Fails (exit status 3) when it cannot be read.
std::string read_content(const IniOptions& options);

// The same; nothing for a file that is missing.
std::optional<std::string> content_if_any(const IniOptions& options);

// Reports that there is no such entry.
ExitCode not_found(Session& session, const IniOptions& options);

// The positional arguments FILE, SECTION and KEY.
void add_entry(Arguments line, IniOptions& options);

void add_ini_get(Arguments ini, Session& session);
void add_ini_list(Arguments ini, Session& session);
void add_ini_remove(Arguments ini, Session& session);
void add_ini_set(Arguments ini, Session& session);

}  // namespace kw::tool
