#include "kwutils/clsAPIUtil.h"

#include <optional>
#include <string>

#include "base/case_map.h"
#include "base/code_page.h"
#include "platform/user.h"
#include "text/blanks.h"

namespace kw {
namespace {

constexpr std::size_t kBufferSize = 255;

// The buffer that the system fills: the name in its code page and a NUL, if there is room for both.
std::u16string filled_buffer() {
  std::u16string buffer(kBufferSize, u'\0');
  const std::optional<std::u16string> name = platform::user_name();
  if (name && name->size() < kBufferSize) widen(narrow(*name), buffer.data());
  return buffer;
}

}  // namespace

String clsAPIUtil::NTDomainUserName() const {
  std::u16string name = upper(text::without_blanks_around(filled_buffer()));
  name.pop_back();
  return String(name);
}

}  // namespace kw
