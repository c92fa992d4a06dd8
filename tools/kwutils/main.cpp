// kwutils: entity files and the library's classes at the command line.
#include "platform/command_line.h"
#include "platform/terminal.h"
#include "tool/tool.h"

int main(int argc, char** argv) {
  kw::platform::use_plain_streams();
  return static_cast<int>(
      kw::tool::run_tool(kw::platform::command_line(argc, argv), stdout, stderr));
}
