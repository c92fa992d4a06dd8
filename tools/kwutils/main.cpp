// kwutils: entity files and the library's classes at the command line.
#include <algorithm>

#include "tool/tool.h"

int main(int argc, char** argv) {
  const std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
  return static_cast<int>(kw::tool::run_tool(words, stdout, stderr));
}
