// What the tests of clsParse look at.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "kwutils/array.h"
#include "kwutils/collection.h"
#include "kwutils/error.h"
#include "kwutils/string.h"

namespace kw {

using Texts = std::vector<std::u16string>;

inline Texts texts_of(const Array<String>& array) {
  Texts texts;
  for (const String& element : array.elements()) texts.emplace_back(element.view());
  return texts;
}

inline Texts texts_of(const Collection& collection) {
  Texts texts;
  for (std::int32_t position = 1; position <= collection.count(); ++position) {
    texts.emplace_back(collection.item(position).text().view());
  }
  return texts;
}

inline Array<String> array_of(std::int32_t lower, const Texts& texts) {
  std::vector<String> values;
  for (const std::u16string& text : texts) values.emplace_back(text);
  return Array<String>::of(lower, std::move(values));
}

// The number of the error that `body` throws; 0 when it throws none.
template <class Body>
int error_of(Body body) {
  try {
    body();
  } catch (const Error& error) {
    return static_cast<int>(error.number);
  }
  return 0;
}

// Keeps an array from being resized, as an automation client does that uses its elements.
class ArrayLock {
 public:
  explicit ArrayLock(const Array<String>& array) : array_(array.get()) { SafeArrayLock(array_); }
  ~ArrayLock() { SafeArrayUnlock(array_); }
  ArrayLock(const ArrayLock&) = delete;
  ArrayLock& operator=(const ArrayLock&) = delete;

 private:
  SAFEARRAY* array_;
};

}  // namespace kw
