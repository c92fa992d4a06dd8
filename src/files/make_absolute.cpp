#include <string>

#include "files/path_steps.h"
#include "files/path_text.h"
#include "kwutils/clsFileUtil.h"
#include "platform/paths.h"

namespace kw {
namespace {

using files::GuardedSteps;

constexpr std::u16string_view kNetworkPrefix = u"\\\\";

void fill_placeholders(GuardedSteps& steps, std::u16string& path) {
  steps.run([&] { path = files::ReplaceAllInPath(path, u"$PATH$", platform::module_directory()); });
  steps.run([&] { path = files::ReplaceAllInPath(path, u"$EXENAME$", platform::module_name()); });
}

// Callers get no network path, but they do get the messages that its normalisation shows.
void normalise_network_path(GuardedSteps& steps, std::u16string path) {
  steps.run([&] {
    path = files::ReplaceAllInPath(path.substr(kNetworkPrefix.size()), u"\\\\", u"\\");
    path.insert(0, kNetworkPrefix);
  });
  files::replace_step(steps, path, u"\\.\\", u"\\");
  files::resolve_step(steps, path);
}

// The current directory of a drive, read by making it the current drive for a moment.
std::u16string directory_of_drive(GuardedSteps& steps, char16_t letter) {
  char16_t saved = 0;
  steps.run([&] { saved = platform::current_drive(); });
  files::change_drive(steps, letter);
  std::u16string directory = files::current_directory(steps);
  files::change_drive(steps, saved);
  return directory;
}

bool has_illegal_colon(std::u16string_view path) {
  const std::size_t last = path.rfind(u':');
  return last != std::u16string_view::npos && (last != 1 || path.front() == u':');
}

bool has_drive(std::u16string_view path) { return path.size() > 1 && path[1] == u':'; }

}  // namespace

String clsFileUtil::MakeAbsolute(const String& relPath, const Variant& driveindicator) const {
  GuardedSteps steps(u"MakeAbsolute");
  std::u16string path(relPath.view());
  fill_placeholders(steps, path);
  files::replace_step(steps, path, u"\\.\\", u"\\");
  if (path.empty()) return {};
  if (path.starts_with(kNetworkPrefix)) {
    normalise_network_path(steps, path);
    return {};
  }
  if (has_illegal_colon(path)) {
    files::show_illegal_colon(steps, relPath);
    return {};
  }
  std::u16string base;
  if (has_drive(path)) {
    base = directory_of_drive(steps, path.front());
    path.erase(0, 2);
  } else {
    base = files::base_folder(steps, driveindicator);
  }
  if (!base.ends_with(u'\\')) base += u'\\';
  path.insert(0, path.starts_with(u'\\') ? base.substr(0, 2) : base);
  files::normalise(steps, path);
  return steps.aborted() ? String() : String(path);
}

}  // namespace kw
