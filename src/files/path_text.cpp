#include "files/path_text.h"

#include "base/find_text.h"
#include "kwutils/error.h"
#include "platform/message_box.h"
#include "text/positions16.h"
#include "text/replace_until_gone.h"

namespace kw::files {
namespace {

constexpr std::u16string_view kReference = u"\\..\\";
constexpr std::size_t kRootPosition = 3;

// Takes the last folder off `path`, with the "\" before it. The search for that "\" ends at
// position 2, whose character then goes, whatever it is.
void drop_last_folder(std::u16string& path) {
  if (path.empty()) throw Error(ErrorNumber::invalid_argument);
  std::size_t position = path.size();
  while (position >= kRootPosition && path[position - 1] != u'\\') --position;
  path.resize(position - 1);
}

}  // namespace

std::u16string ReplaceAllInPath(std::u16string_view s, std::u16string_view find,
                                std::u16string_view repl) {
  return text::replace_until_gone(s, find, repl);
}

std::u16string ResolveParentReferences(std::u16string_view s) {
  // What is resolved holds no reference, and none can begin in it: where its end is a "\", that
  // belonged to the folder that was dropped. So the rest alone is searched.
  std::u16string resolved;
  std::u16string_view rest = s;
  for (bool first = true;; first = false) {
    const std::size_t place = find_text(rest, kReference);
    resolved.append(rest.substr(0, place));
    if (place == kNotFound) return resolved;
    text::check_position16(resolved.size());
    if (first && resolved.size() + 1 == kRootPosition)
      show_path(u"Illegal directory reference '", s, u"'");
    drop_last_folder(resolved);
    rest.remove_prefix(place + kReference.size() - 1);  // its last "\" stays
  }
}

void show_path(std::u16string_view before, std::u16string_view path, std::u16string_view after) {
  std::u16string message(before);
  message.append(path).append(after);
  platform::show_message(message, MessageButtons::ok);
}

}  // namespace kw::files
