// Which types of entities a file holds.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kw::tool {

struct TypeCount {
  std::u16string type;  // as it opens
  std::int64_t entities = 0;
};

// In the order in which they first appear. A first record of six letters that closes nothing is a
// header and no type. Errors as the file service's.
std::vector<TypeCount> count_types(std::u16string_view file);

// The entities of one type, named in any case.
std::int64_t count_type(std::u16string_view file, std::u16string_view type);

}  // namespace kw::tool
