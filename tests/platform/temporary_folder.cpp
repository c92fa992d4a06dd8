#include "platform/temporary_folder.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>

namespace kw::testing {
namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder(const fs::path& parent) {
  const fs::path place = parent.empty() ? fs::temp_directory_path() : parent;
  std::random_device random;
  do {
    path_ = place / ("kw_test_" + std::to_string(random()));
  } while (!fs::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

void TemporaryFolder::write(std::string_view file, std::string_view content) const {
  std::ofstream(path_ / file, std::ios::binary) << content;
}

std::string TemporaryFolder::read(std::string_view file) const {
  std::ifstream stream(path_ / file, std::ios::binary);
  std::ostringstream content;
  content << stream.rdbuf();
  return content.str();
}

std::vector<std::string> TemporaryFolder::list() const {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(path_)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

void TemporaryFolder::clear() const {
  for (const fs::directory_entry& entry : fs::directory_iterator(path_)) {
    fs::remove_all(entry.path());
  }
}

}  // namespace kw::testing
