// The library's texts, arrays and collections as values that tests compare.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "kwutils/array.h"
#include "kwutils/collection.h"
#include "kwutils/string.h"

namespace kw::testing {

using Texts = std::vector<std::u16string>;

inline std::u16string text_of(const String& text) { return std::u16string(text.view()); }

inline Texts texts_of(const Array<String>& array) {
  Texts texts;
  for (const String& element : array.elements()) texts.push_back(text_of(element));
  return texts;
}

inline Texts texts_of(const Collection& collection) {
  Texts texts;
  for (std::int32_t position = 1; position <= collection.count(); ++position) {
    texts.push_back(text_of(collection.item(position).text()));
  }
  return texts;
}

inline Array<String> array_of(std::int32_t lower, const Texts& texts) {
  std::vector<String> values;
  for (const std::u16string& text : texts) values.emplace_back(text);
  return Array<String>::of(lower, std::move(values));
}

}  // namespace kw::testing
