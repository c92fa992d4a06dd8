#include "store/temporary_name.h"

#include "base/find_unit.h"
#include "kwutils/error.h"

namespace kw::store {

std::u16string temporary_name(std::u16string_view file) {
  constexpr std::size_t kTail = 5;
  if (file.size() < kTail) throw Error(ErrorNumber::invalid_argument);
  const std::size_t dot = find_unit(file, u'.', file.size() - kTail);
  std::u16string name(file.substr(0, dot == kNotFound ? 0 : dot + 1));
  return name += u"tmp";
}

}  // namespace kw::store
