#include "files/parent_references.h"

#include "base/find_text.h"
#include "kwutils/error.h"
#include "text/positions16.h"

namespace kw::files {
namespace {

constexpr std::u16string_view kReference = u"\\..\\";
constexpr std::size_t kRootPosition = 3;

// Takes the last folder off `path`, the "\" before it included. The path of a drive's root and what
// is shorter lose their last but one position in the same way, whatever stands there.
void drop_last_folder(std::u16string& path) {
  if (path.empty()) throw Error(ErrorNumber::invalid_argument);
  std::size_t position = path.size();
  while (position >= kRootPosition && path[position - 1] != u'\\') --position;
  path.resize(position - 1);
}

}  // namespace

std::u16string resolve_parent_references(std::u16string_view path,
                                         const std::function<void()>& show_illegal) {
  // What is resolved holds no reference, and none can begin in it: where its end is a "\", that
  // belonged to the folder that was dropped. So the rest alone is searched.
  std::u16string resolved;
  std::u16string_view rest = path;
  for (bool first = true;; first = false) {
    const std::size_t place = find_text(rest, kReference);
    resolved.append(rest.substr(0, place));
    if (place == kNotFound) return resolved;
    text::check_position16(resolved.size());
    if (first && resolved.size() + 1 == kRootPosition) show_illegal();
    drop_last_folder(resolved);
    rest.remove_prefix(place + kReference.size() - 1);  // its last "\" stays
  }
}

}  // namespace kw::files
