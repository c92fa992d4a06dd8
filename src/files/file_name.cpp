#include "files/file_name.h"

#include "base/find_text.h"
#include "text/blanks.h"

namespace kw::files {

std::u16string ReverseText(std::u16string_view s) { return {s.rbegin(), s.rend()}; }

std::int32_t FindLastOccurrence(std::u16string_view s, std::u16string_view sought) {
  const std::size_t place = find_text(std::u16string_view(ReverseText(s)), ReverseText(sought));
  return place == kNotFound ? -1 : static_cast<std::int32_t>(s.size() - place);
}

FileNameParts split_file_name(std::u16string_view file_name) {
  FileNameParts parts;
  const std::int32_t last = FindLastOccurrence(file_name, u"\\");
  if (last >= 1) parts.path = file_name.substr(0, static_cast<std::size_t>(last));
  const std::u16string_view rest = file_name.substr(parts.path.size());
  const std::size_t dot = rest.find(u'.');
  parts.name = rest.substr(0, dot);
  if (dot != std::u16string_view::npos) parts.extension = rest.substr(dot + 1);
  return parts;
}

std::u16string_view folder_of(std::u16string_view file_name) {
  const std::size_t path_size = split_file_name(file_name).path.size();
  // Callers count on the third position alone making a root, also in "ab\c".
  const bool root = path_size == 1 || path_size == 3;
  if (path_size == 0 || root) return file_name.substr(0, path_size);
  return text::without_blanks_around(file_name.substr(0, path_size - 1));
}

}  // namespace kw::files
