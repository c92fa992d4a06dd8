#include <string>

#include "base/case_map.h"
#include "files/path_steps.h"
#include "files/path_text.h"
#include "kwutils/clsFileUtil.h"
#include "platform/paths.h"

namespace kw {
namespace {

using files::GuardedSteps;

// Takes the drive off `path` when it is `own_drive`. Leaves the process on `own_drive`: callers
// count on it, also where that was not the current one.
void drop_own_drive(GuardedSteps& steps, std::u16string& path, char16_t own_drive) {
  files::change_drive(steps, path.front());
  const std::u16string directory = files::current_directory(steps);
  const char16_t drive = directory.empty() ? u'\0' : directory.front();
  if (to_upper(drive) == to_upper(own_drive)) path.erase(0, 2);
  files::change_drive(steps, own_drive);
}

char16_t current_drive(GuardedSteps& steps) {
  char16_t drive = 0;
  steps.run([&] { drive = platform::current_drive(); });
  return drive;
}

}  // namespace

String clsFileUtil::UnMakeAbsolute(const String& relPath, const Variant& driveindicator) const {
  GuardedSteps steps(u"UnMakeAbsolute");
  const auto result = [&steps](std::u16string_view path) {
    return steps.aborted() ? String() : String(path);
  };
  std::u16string path(relPath.view());
  const std::u16string base = files::base_folder(steps, driveindicator);
  steps.run([&] { path = files::ReplaceAllInPath(lower(path), lower(base), u""); });
  const std::size_t colon = path.find(u':');
  if (colon != std::u16string::npos) {
    if (colon != 1) {
      files::show_illegal_colon(steps, relPath);
      return {};
    }
    const bool indicated = !driveindicator.is_missing();
    if (indicated && base.find(u':') == std::u16string::npos) return result(path);
    drop_own_drive(steps, path, indicated ? base.front() : current_drive(steps));
  }
  files::normalise(steps, path);
  return result(path);
}

}  // namespace kw
