// The profile service: single entries of INI files.
//
// On Windows these are the system's own functions. Elsewhere the library's engine stands in: it
// reads and writes the same files with the same answers.
//
// All texts are bytes of the code page, and NUL ends them. A file name without "\", "/" and ":" is
// looked for in the windows directory. In the last part of a file name case does not matter; a file
// of exactly that name comes first. On Linux a "/" after a leading ".\" begins a native absolute
// name, for callers put ".\" before every name that holds neither "\" nor ":".
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kw::platform::profile {

// The value of the key, without blanks and one pair of quotes around it, cut to `capacity` - 1
// bytes. `fallback` goes the same way where there is no such file, section, key or "=", or where
// the file cannot be read; it loses the blanks at its end (of blanks alone the first stays).
std::string get_string(std::string_view section, std::string_view key, std::string_view fallback,
                       std::size_t capacity, std::string_view file);

// The whole number that the value begins with, modulo 2^32: "12abc" is 12, "0x10" is 16, "abc" is
// 0. `fallback` where get_string would give its own, and for an empty value.
std::int32_t get_int(std::string_view section, std::string_view key, std::int32_t fallback,
                     std::string_view file);

// Gives the key that value, making section and file where they are missing (never a folder).
// Without a value the key is removed; a key that is not there is no failure. The file is replaced
// in one step and keeps every line but the one concerned, byte for byte. False, and the file is as
// it was, when it cannot be read or written.
bool write_string(std::string_view section, std::string_view key,
                  std::optional<std::string_view> value, std::string_view file);

// The name under which the service finds a file that it is given: the spelling of its last part may
// differ in case. `file` itself where there is none.
std::u16string stored_name(std::u16string_view file);

// Where file names without a folder are looked for: what the host answers, else the system's own
// directory ("/etc" on Linux).
std::u16string windows_directory();

}  // namespace kw::platform::profile
