#include "kwutils/string.h"

#include <cstring>
#include <limits>

#include "base/unicode.h"
#include "kwutils/error.h"

namespace kw {
namespace {

BSTR allocate(const char16_t* text, std::size_t length) {
  constexpr std::size_t kLongest = (std::numeric_limits<std::uint32_t>::max() - 16) / 2;
  BSTR result =
      length > kLongest ? nullptr : SysAllocStringLen(text, static_cast<std::uint32_t>(length));
  if (result == nullptr) throw Error(ErrorNumber::out_of_memory);
  return result;
}

}  // namespace

String::String(std::u16string_view text)
    : text_(text.empty() ? nullptr : allocate(text.data(), text.size())) {}

String String::uninitialized(std::size_t length) {
  return attach(length == 0 ? nullptr : allocate(nullptr, length));
}

String String::from_utf8(std::string_view text) { return String(kw::from_utf8(text)); }

String String::attach(BSTR text) noexcept {
  String result;
  result.text_ = text;
  return result;
}

std::string String::utf8() const { return to_utf8(view()); }

String String::join(const std::u16string_view* parts, std::size_t count) {
  std::size_t length = 0;
  for (std::size_t i = 0; i < count; ++i) length += parts[i].size();
  String result = uninitialized(length);
  char16_t* to = result.data();
  for (std::size_t i = 0; i < count; ++i) {
    if (parts[i].empty()) continue;
    std::memcpy(to, parts[i].data(), parts[i].size() * sizeof(char16_t));
    to += parts[i].size();
  }
  return result;
}

}  // namespace kw
