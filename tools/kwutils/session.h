// What the commands share during one run of the tool.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tool/exit_code.h"
#include "tool/output.h"
#include "tool/progress.h"

namespace kw::tool {

struct Session {
  Session(std::FILE* answers, std::FILE* messages);

  // A message to the user, beside the answer. What was answered before stands before it.
  void say(std::string_view message);

  std::FILE* out_file;
  std::FILE* err_file;
  Output out;
  ProgressBar progress;                     // on the terminal of the messages, where it is one
  bool json = false;                        // answer in JSON instead of text
  std::vector<std::string> call_arguments;  // of `call`: whatever follows the method's name
  std::function<ExitCode()> run;            // the command that the command line names
};

}  // namespace kw::tool
