// File bytes as the callers' texts.
#pragma once

#include <string_view>

#include "base/code_page.h"
#include "kwutils/string.h"

namespace kw::store {

// One allocation, of the final length.
inline String text_of(std::string_view bytes) {
  if (bytes.empty()) return String();
  String text = String::uninitialized(bytes.size());
  widen(bytes, text.data());
  return text;
}

}  // namespace kw::store
