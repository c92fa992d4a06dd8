#include "scratch_copy.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "entity_data.h"

namespace kw::bench {
namespace {

std::filesystem::path new_folder() {
  std::string name = (data_folder() / "scratch-XXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr) {
    throw std::system_error(errno, std::generic_category(), name);
  }
  return name;
}

}  // namespace

ScratchCopy::ScratchCopy(const std::filesystem::path& original)
    : folder_(new_folder()), path_(folder_ / original.filename()) {
  std::filesystem::copy_file(original, path_);
}

ScratchCopy::~ScratchCopy() {
  std::error_code left_behind;
  std::filesystem::remove_all(folder_, left_behind);
}

void ScratchCopy::settle() const {
  const int folder = ::open(folder_.c_str(), O_RDONLY | O_DIRECTORY);
  if (folder < 0) return;
  ::syncfs(folder);
  ::close(folder);
}

}  // namespace kw::bench
