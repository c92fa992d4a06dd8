// Results as the examples in the headers write them: texts compare with literals and are printed.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

#include "kwutils/array.h"
#include "kwutils/string.h"
#include "support/expect_error.h"

namespace kw {

inline bool operator==(const String& text, std::u16string_view expected) {
  return text.view() == expected;
}

inline std::ostream& operator<<(std::ostream& out, const String& text) {
  return out << text.utf8();
}

// The elements of an array, from the lower bound on.
template <class T>
std::string listed(const Array<T>& array) {
  std::ostringstream out;
  for (const T& element : array.elements())
    out << (&element == array.elements().data() ? "" : ", ") << element;
  return out.str();
}

using testing::number_of;

}  // namespace kw
