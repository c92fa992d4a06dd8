// What a failed call says, in the terms of the cases.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "kwutils/variant.h"

namespace kw::cases {

struct Failure {
  std::int64_t number = 0;
  std::u16string source;
  std::u16string description;
};

// What one call answers.
struct Called {
  Variant result;
  std::optional<Failure> failure;
};

// The error numbers that stand for the standard statuses; any other status stands for itself.
std::int64_t error_number(HRESULT failure);

// The text, which is freed.
std::u16string taken(BSTR text);

}  // namespace kw::cases
