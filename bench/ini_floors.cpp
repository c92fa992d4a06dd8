#include "ini_floors.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <memory>
#include <system_error>

namespace kw::bench {
namespace {

class File {
 public:
  File(const std::filesystem::path& path, int flags) : file_(::open(path.c_str(), flags, 0644)) {
    check(file_ >= 0);
  }
  ~File() { ::close(file_); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  std::size_t size() const {
    struct stat status {};
    check(::fstat(file_, &status) == 0);
    return static_cast<std::size_t>(status.st_size);
  }
  std::size_t read(char* bytes, std::size_t size) const {
    const ssize_t count = ::read(file_, bytes, size);
    check(count >= 0);
    return static_cast<std::size_t>(count);
  }
  void write(const char* bytes, std::size_t size) const {
    check(::write(file_, bytes, size) == static_cast<ssize_t>(size));
  }
  void flush() const { check(::fsync(file_) == 0); }

 private:
  static void check(bool good) {
    if (!good) throw std::system_error(errno, std::generic_category());
  }

  int file_;
};

struct Content {
  explicit Content(const File& file)
      : size(file.size()), bytes(std::make_unique_for_overwrite<char[]>(size)) {
    size = file.read(bytes.get(), size);
  }
  std::size_t size;
  std::unique_ptr<char[]> bytes;
};

bool begins(std::string_view line, std::string_view name, char end) {
  return line.size() > name.size() && line[name.size()] == end && line.starts_with(name);
}

}  // namespace

std::string floor_ini_get(const std::filesystem::path& path, std::string_view section,
                          std::string_view key) {
  const File file(path, O_RDONLY);
  const Content content(file);
  std::string_view text(content.bytes.get(), content.size);
  for (bool inside = false; !text.empty();) {
    const auto* found = static_cast<const char*>(std::memchr(text.data(), '\n', text.size()));
    const std::size_t end =
        found != nullptr ? static_cast<std::size_t>(found - text.data()) : text.size();
    std::string_view line = text.substr(0, end);
    text.remove_prefix(found != nullptr ? end + 1 : end);
    if (line.starts_with('[')) {
      if (inside) break;
      inside = begins(line.substr(1), section, ']');
    } else if (inside && begins(line, key, '=')) {
      line.remove_prefix(key.size() + 1);
      if (line.ends_with('\r')) line.remove_suffix(1);
      return std::string(line);
    }
  }
  return {};
}

void floor_ini_rewrite(const std::filesystem::path& path, bool flush) {
  const std::filesystem::path second = std::filesystem::path(path) += ".new";
  {
    const File file(path, O_RDONLY);
    const Content content(file);
    const File written(second, O_WRONLY | O_CREAT | O_TRUNC);
    written.write(content.bytes.get(), content.size);
    if (flush) written.flush();
  }
  std::filesystem::rename(second, path);
}

}  // namespace kw::bench
