#include "work_directory.h"

#include <algorithm>
#include <atomic>
#include <fstream>
#include <iterator>
#include <random>

#include "base/unicode.h"
#include "fields.h"

namespace kw::cases {
namespace {

namespace fs = std::filesystem;

// A file's name in UTF-8, with "/" between folders.
std::string plain_name(const Json& name) {
  std::string result = to_utf8(text_of(name, "file name"));
  std::replace(result.begin(), result.end(), '\\', '/');
  return result;
}

bool leads_inside(const fs::path& path) {
  if (path.empty() || path.is_absolute() || path.has_root_path()) return false;
  return std::none_of(path.begin(), path.end(), [](const fs::path& part) {
    return part.empty() || part == ".." || part == ".";
  });
}

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

fs::path inner_path(const fs::path& folder, const std::string& name) {
  const fs::path path(std::u8string(name.begin(), name.end()));
  // A colon stands behind a drive's letter, be it one of this system or not.
  const bool good =
      leads_inside(path) && name.find_first_of(std::string_view(":\0", 2)) == name.npos;
  if (!good) throw Malformed("file '" + name + "': the name leads out of the directory");
  return folder / path;
}

void write_files(const fs::path& folder, const Json& files) {
  for (const auto& [name, content] : files_of(files)) {
    const fs::path path = inner_path(folder, name);
    fs::create_directories(path.parent_path());
    std::ofstream output(path, std::ios::binary);
    output.write(content.data(), static_cast<std::streamsize>(content.size()));
    if (!output.flush()) throw Malformed("file '" + name + "' cannot be written");
  }
}

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
  fs::remove_all(system_path(), ignored);
}

fs::path WorkDirectory::system_path() const { return fs::path(path_) += "-system"; }

void WorkDirectory::make_directories(const Json& names) const {
  for (const Json& name : names) fs::create_directories(inner_path(path_, plain_name(name)));
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
    const std::string plain = plain_name(name);
    inner_path({}, plain);
    if (!content.is_string()) throw Malformed("file " + plain + ": the content is no text");
    result[plain] = bytes(content);
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
