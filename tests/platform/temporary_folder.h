// A folder of its own for one test, removed afterwards, and plain access to the files in it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kw::testing {

class TemporaryFolder {
 public:
  // Below `parent`, or where the system keeps temporary files.
  explicit TemporaryFolder(const std::filesystem::path& parent = {});
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const noexcept { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }
  // The full name of a file in the folder, as the library takes it.
  std::u16string name(std::string_view file) const { return (path_ / file).u16string(); }

  void write(std::string_view file, std::string_view content) const;
  std::string read(std::string_view file) const;
  // The names in it, sorted.
  std::vector<std::string> list() const;
  void clear() const;

 private:
  std::filesystem::path path_;
};

}  // namespace kw::testing
