#include "files/path_steps.h"

#include "files/file_name.h"
#include "files/path_text.h"
#include "platform/paths.h"

namespace kw::files {

void replace_step(GuardedSteps& steps, std::u16string& path, std::u16string_view sought,
                  std::u16string_view by) {
  steps.run([&] { path = ReplaceAllInPath(path, sought, by); });
}

void resolve_step(GuardedSteps& steps, std::u16string& path) {
  steps.run([&] { path = ResolveParentReferences(path); });
}

void normalise(GuardedSteps& steps, std::u16string& path) {
  replace_step(steps, path, u"\\\\", u"\\");
  replace_step(steps, path, u"\\.\\", u"\\");
  resolve_step(steps, path);
}

std::u16string base_folder(GuardedSteps& steps, const Variant& indicator) {
  if (indicator.is_missing()) return current_directory(steps);
  std::u16string folder;
  steps.run([&] {
    String scratch;
    folder = split_file_name(indicator.text(scratch)).path;
  });
  return folder;
}

std::u16string current_directory(GuardedSteps& steps) {
  std::u16string directory;
  steps.run([&] { directory = platform::current_directory(); });
  return directory;
}

void change_drive(GuardedSteps& steps, char16_t letter) {
  steps.run([letter] { platform::change_drive(letter); });
}

void show_illegal_colon(GuardedSteps& steps, std::u16string_view path) {
  steps.run(
      [path] { show_path(u"Illegal path '", path, u"', a colon may only occur on position 2"); });
}

}  // namespace kw::files
