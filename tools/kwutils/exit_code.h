// What the tool's exit status tells.
#pragma once

namespace kw::tool {

enum class ExitCode : int {
  done = 0,       // found, or done
  not_found = 1,  // nothing found; of `check`: findings
  usage = 2,      // the command line cannot be understood
  failed = 3,     // a file cannot be read or written, or its content cannot be used
};

}  // namespace kw::tool
