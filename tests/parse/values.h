// What the tests of clsParse look at.
#pragma once

#include <gtest/gtest.h>

#include "kwutils/array.h"
#include "kwutils/string.h"
#include "support/expect_error.h"
#include "support/texts.h"

namespace kw {

using testing::array_of;
using testing::number_of;
using testing::text_of;
using testing::Texts;
using testing::texts_of;

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
