// Random INI files, questions about them and a change to each, as commands for the program that
// calls the system's profile functions (profile_driver.cpp) and as calls of the library's engine.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "reference/random_inputs.h"

namespace kw::wine {

// One command, without the name of the file that it is about.
struct Command {
  enum Kind { get, integer, set, remove } kind;
  std::string section;
  std::string key;
  std::string argument;  // the default of get and integer, the value of set
};

void PrintTo(const Command& command, std::ostream* out);

struct Case {
  std::string content;
  std::vector<Command> before;  // questions about the file, then a change
  std::vector<Command> after;   // questions about the changed file
};

// The files keep to what both sides are known to agree on: no letter beyond ASCII in both its
// cases, no byte order mark, no header without a name, no blank before a NUL, no quoted value that
// just fits the buffer, at most one line without a key's name.
Case random_case(reference::Random& random);

// A line of the driver's input.
std::string line_of(const Command& command, const std::string& file);

// The engine's answer, in the driver's form.
std::string native_answer(const Command& command, const std::string& file);

// A file as Wine writes it whenever something changes: blank lines and "[]" dropped, lines trimmed,
// nothing after a header, no blanks around the first "=", CR LF.
std::string normalised(const std::string& content);

}  // namespace kw::wine
