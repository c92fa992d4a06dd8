// The file that the examples of clsFileReadWrite.h read, made anew for each test.
#pragma once

#include <string>

#include "headers/example_folder.h"
#include "headers/example_values.h"
#include "kwutils/clsFileReadWrite.h"

namespace kw {

class EntityFile : public ExampleFolder {
 protected:
  EntityFile() {
    folder_.write("net.dat", with_line_ends(R"(; pumps of the north district
NODE id 'B1' nm 'Inlet' node
NODE id 'B2' nm 'Outlet' TBLE 0.0 1.5 <
  1.0 2.5 <
tble node
LINK id 'L1' PIPE id 'P1' nm 'Upper' pipe PIPE id 'P2' nm 'Lower' pipe link
)"));
  }

  // Whether the file holds these lines, one after the other.
  bool holds(std::string_view lines) const {
    return folder_.read("net.dat").find(with_line_ends(lines)) != std::string::npos;
  }

  kw::clsFileReadWrite store;
  kw::String file = u"net.dat";
};

}  // namespace kw
