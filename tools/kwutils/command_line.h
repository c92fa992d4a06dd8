// The words of the command line.
#pragma once

#include <string>
#include <vector>

namespace kw::tool {

struct CommandLine {
  std::vector<std::string> words;           // for the option parser
  std::vector<std::string> call_arguments;  // of `call`: kept from it, whatever they look like
};

// `words`: without the program's name.
CommandLine split_command_line(std::vector<std::string> words);

}  // namespace kw::tool
