#include "work_directory.h"

#include <algorithm>
#include <atomic>
#include <fstream>
#include <iterator>
#include <random>

namespace kw::cases {
namespace {

namespace fs = std::filesystem;

std::u8string name_of(const std::string& utf8) { return {utf8.begin(), utf8.end()}; }

// Where all work directories of this process lie; removed when it ends. A file system in memory
// where there is one, for cases flush to the disk what they write.
class ScratchRoot {
 public:
  ScratchRoot() {
    std::random_device random;
    const std::string name = "kwutils-cases-" + std::to_string(random());
    std::error_code failure;
    path_ = fs::path("/dev/shm") / name;
    if (path_.is_absolute() && fs::create_directory(path_, failure)) return;
    path_ = fs::temp_directory_path() / name;
    fs::create_directory(path_);
  }
  ScratchRoot(const ScratchRoot&) = delete;
  ScratchRoot& operator=(const ScratchRoot&) = delete;
  ~ScratchRoot() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

const fs::path& scratch_root() {
  static const ScratchRoot root;
  return root.path();
}

std::string content_of(const fs::path& path) {
  std::ifstream input(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(input), {}};
}

}  // namespace

WorkDirectory::WorkDirectory() : before_(fs::current_path()) {
  static std::atomic<unsigned> next{0};
  path_ = scratch_root() / std::to_string(next++);
  fs::create_directory(path_);
  fs::current_path(path_);
}

WorkDirectory::~WorkDirectory() {
  std::error_code ignored;
  fs::current_path(before_, ignored);
  fs::remove_all(path_, ignored);
}

void WorkDirectory::write(const Json& files) const {
  for (const auto& [name, content] : files.items()) {
    const fs::path path = path_ / name_of(name);
    fs::create_directories(path.parent_path());
    const std::string text = bytes(content);
    std::ofstream(path, std::ios::binary)
        .write(text.data(), static_cast<std::streamsize>(text.size()));
  }
}

void WorkDirectory::make_directories(const Json& names) const {
  for (const Json& name : names) fs::create_directories(path_ / name_of(name.get<std::string>()));
}

Files WorkDirectory::files() const {
  Files result;
  for (const auto& entry : fs::recursive_directory_iterator(path_)) {
    if (!entry.is_regular_file()) continue;
    const std::u8string name = entry.path().lexically_relative(path_).generic_u8string();
    result[std::string(name.begin(), name.end())] = content_of(entry.path());
  }
  return result;
}

Files files_of(const Json& files) {
  Files result;
  for (const auto& [name, content] : files.items()) {
    std::string generic = name;
    std::replace(generic.begin(), generic.end(), '\\', '/');
    result[generic] = bytes(content);
  }
  return result;
}

std::string files_difference(const Files& got, const Files& expected) {
  for (const auto& [name, content] : expected) {
    const auto found = got.find(name);
    if (found == got.end()) return "file " + name + " is missing";
    if (found->second != content)
      return "file " + name + ": expected " + shown_bytes(content) + ", got " +
             shown_bytes(found->second);
  }
  for (const auto& [name, content] : got)
    if (!expected.contains(name))
      return "file " + name + " is not expected: " + shown_bytes(content);
  return "";
}

}  // namespace kw::cases
