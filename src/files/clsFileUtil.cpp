#include "kwutils/clsFileUtil.h"

#include <exception>
#include <limits>

#include "files/file_name.h"
#include "kwutils/error.h"
#include "platform/files.h"
#include "text/blanks.h"

namespace kw {

Boolean clsFileUtil::FileNameExists(const String& FileName) const {
  const std::u16string_view name = text::without_blanks_around(FileName);
  if (name.empty()) return false;
  try {
    platform::files().open_input(name);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

void clsFileUtil::SplitFileName(std::u16string_view FileName, String& path, String& name,
                                String& ext) const {
  const files::FileNameParts parts = files::split_file_name(FileName);
  // All are cut before the first is stored: `FileName` may be a view of one of them.
  String parts_path(parts.path);
  String parts_name(parts.name);
  String parts_ext(parts.extension);
  path = std::move(parts_path);
  name = std::move(parts_name);
  ext = std::move(parts_ext);
}

Variant clsFileUtil::StripFileFrom(String& TheFile) const {
  TheFile = text::without_blanks_around(TheFile);
  return Variant(files::folder_of(TheFile));
}

String clsFileUtil::StripPathFrom(const Variant& TheFile) const {
  // The length is held in 16 bits; where it does not fit, as where there is no text, no character
  // is taken.
  constexpr std::size_t kLongest = std::numeric_limits<std::int16_t>::max();
  String scratch;
  std::u16string_view file;
  try {
    file = TheFile.text(scratch);
  } catch (const Error&) {
    return {};
  }
  if (file.size() > kLongest) return {};
  return text::without_blanks_around(file.substr(file.rfind(u'\\') + 1));
}

std::int32_t clsFileUtil::FileOpener(const String&, const std::int32_t&) const { return NO_FILE; }

}  // namespace kw
