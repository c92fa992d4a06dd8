// Current drive and directory of the process, and where the library itself lies.
#pragma once

#include <string>

namespace kw::platform {

// The letter of the current drive. On Linux there are drives too: C: is the root of the file
// system, every other letter a drive that is empty.
char16_t current_drive();

// Makes another drive the current one. Error 68 for what is no letter, or a drive that is not
// there.
void change_drive(char16_t letter);

// The current directory of the current drive, with its drive: "C:\home\a", or "C:\" for a root.
std::u16string current_directory();

// The folder that holds the library's own file, without a "\" at its end (but "C:\" for a root),
// and the file's name without its extension.
std::u16string module_directory();
std::u16string module_name();

}  // namespace kw::platform
