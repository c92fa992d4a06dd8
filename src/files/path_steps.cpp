#include "files/path_steps.h"

#include "files/file_name.h"
#include "files/parent_references.h"
#include "platform/message_box.h"
#include "platform/paths.h"
#include "text/replace_until_gone.h"

namespace kw::files {
namespace {

// Around the text in question.
void tell(std::u16string_view before, std::u16string_view path, std::u16string_view after) {
  std::u16string message(before);
  message.append(path).append(after);
  platform::show_message(message, MessageButtons::ok);
}

}  // namespace

void replace_in_path(GuardedSteps& steps, std::u16string& path, std::u16string_view sought,
                     std::u16string_view by) {
  steps.run([&] { path = text::replace_until_gone(path, sought, by); });
}

void resolve_parents(GuardedSteps& steps, std::u16string& path) {
  const auto show_illegal = [&] { tell(u"Illegal directory reference '", path, u"'"); };
  steps.run([&] { path = resolve_parent_references(path, show_illegal); });
}

void normalise(GuardedSteps& steps, std::u16string& path) {
  replace_in_path(steps, path, u"\\\\", u"\\");
  replace_in_path(steps, path, u"\\.\\", u"\\");
  resolve_parents(steps, path);
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
  steps.run([path] { tell(u"Illegal path '", path, u"', a colon may only occur on position 2"); });
}

}  // namespace kw::files
