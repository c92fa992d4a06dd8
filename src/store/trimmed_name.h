// The file name that a writer works with.
#pragma once

#include "kwutils/string.h"
#include "parse/text_view.h"

namespace kw::store {

// Takes the blanks around the name off the caller's variable.
inline void trim_name(String& file) {
  const std::u16string_view trimmed = parse::trim(file.view());
  if (trimmed.size() != file.size()) file = String(trimmed);
}

}  // namespace kw::store
