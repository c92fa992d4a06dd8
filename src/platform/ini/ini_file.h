// INI files by name, through the file service. All names and values are bytes of the code page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kw::ini {

// The value of the first entry of that name in the first section of that name, blanks around both
// names apart; nothing where there is no such entry or it has no "=". Errors of the file service
// are passed on.
std::optional<std::string> read_entry(std::u16string_view file, std::string_view section,
                                      std::string_view key);

// Sets the entry, or removes it where there is no value (see edit.h), in a file that may be
// missing: it is then made, or nothing happens. The file is replaced in one step, and only when
// something changes; a second writer waits for the first one for some time. Errors of the file
// service are passed on; the file is then as it was.
void write_entry(std::u16string_view file, std::string_view section, std::string_view key,
                 std::optional<std::string_view> value);

}  // namespace kw::ini
