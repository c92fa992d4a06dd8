#include "platform/linux/name_in_any_case.h"

#include <dirent.h>

#include <memory>
#include <optional>

#include "base/compare_text.h"
#include "base/unicode.h"
#include "platform/files.h"
#include "platform/linux/file_name.h"

namespace kw::platform {
namespace {

struct CloseFolder {
  void operator()(DIR* folder) const noexcept { closedir(folder); }
};
using Folder = std::unique_ptr<DIR, CloseFolder>;

// The entry of the folder that equals `wanted` but for case.
std::optional<std::u16string> entry_in(const std::string& path, std::u16string_view wanted) {
  const Folder folder(opendir(path.c_str()));
  std::optional<std::u16string> found;
  if (!folder) return found;
  while (const dirent* entry = readdir(folder.get())) {
    std::u16string name = from_utf8(entry->d_name);
    if (equal_text(name, wanted) && (!found || name < *found)) found = std::move(name);
  }
  return found;
}

}  // namespace

std::u16string name_in_any_case(std::u16string_view name) {
  if (files().exists(name)) return std::u16string(name);
  const std::size_t last = name.find_last_of(u"\\/:") + 1;
  const auto entry = entry_in(folder_of(native_name(name).path), name.substr(last));
  return std::u16string(name.substr(0, last)) +
         (entry ? *entry : std::u16string(name.substr(last)));
}

}  // namespace kw::platform
