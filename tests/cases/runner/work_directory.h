// The fresh directory of one case, and what is in it afterwards.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "json_text.h"

namespace kw::cases {

// Name -> content, names with "/" between folders.
using Files = std::map<std::string, std::string>;

// The file of this name in a folder. Throws Malformed for a name that leads out of the folder, or
// to none. "/" and "\\" both separate folders.
std::filesystem::path inner_path(const std::filesystem::path& folder, const std::string& name);

// Writes files (name -> content) into a folder. Throws Malformed for one that cannot be written.
void write_files(const std::filesystem::path& folder, const Json& files);

// The process's current directory while it lives; removed with everything in it afterwards.
class WorkDirectory {
 public:
  WorkDirectory();
  WorkDirectory(const WorkDirectory&) = delete;
  WorkDirectory& operator=(const WorkDirectory&) = delete;
  ~WorkDirectory();

  const std::filesystem::path& path() const { return path_; }
  // Where a case's own "directory of the operating system" may be made; removed likewise.
  std::filesystem::path system_path() const;
  void make_directories(const Json& names) const;
  Files files() const;

 private:
  std::filesystem::path path_;
  std::filesystem::path before_;
};

Files files_of(const Json& files);
// "" when both hold the same files, byte for byte.
std::string files_difference(const Files& got, const Files& expected);

}  // namespace kw::cases
