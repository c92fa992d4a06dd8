// Every method of the entity store that writes a file, with a file to start from.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "platform/temporary_folder.h"

namespace kw::fault {

struct StoreWriter {
  std::string name;  // of the test
  std::string old_content;
  // The call on the file "a.ent" of the folder; false or a throw where it reports a failure.
  std::function<bool(const kw::testing::TemporaryFolder&)> call;
};

std::ostream& operator<<(std::ostream& out, const StoreWriter& writer);

// Some writer has no file to start from: its old content is empty, and no file is there.
std::vector<StoreWriter> store_writers();

// The file that the writers start from: more than one buffer, of every kind of line.
std::string large_entity_file();

}  // namespace kw::fault
