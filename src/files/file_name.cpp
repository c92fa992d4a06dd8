#include "files/file_name.h"

#include "text/blanks.h"

namespace kw::files {

FileNameParts split_file_name(std::u16string_view file_name) noexcept {
  FileNameParts parts;
  parts.path = file_name.substr(0, file_name.rfind(u'\\') + 1);
  const std::u16string_view rest = file_name.substr(parts.path.size());
  const std::size_t dot = rest.find(u'.');
  parts.name = rest.substr(0, dot);
  if (dot != std::u16string_view::npos) parts.extension = rest.substr(dot + 1);
  return parts;
}

std::u16string_view folder_of(std::u16string_view file_name) noexcept {
  const std::size_t path_size = split_file_name(file_name).path.size();
  // Callers count on the third position alone making a root, also in "ab\c".
  const bool root = path_size == 1 || path_size == 3;
  if (path_size == 0 || root) return file_name.substr(0, path_size);
  return text::without_blanks_around(file_name.substr(0, path_size - 1));
}

}  // namespace kw::files
