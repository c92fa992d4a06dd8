#include "tool/output.h"

#include <cerrno>
#include <system_error>

#include "base/unicode.h"
#include "tool/failure.h"

namespace kw::tool {

Output& Output::operator<<(std::u16string_view text) { return *this << to_utf8(text); }

void Output::drain() {
  if (to_ == nullptr) return;
  const std::size_t written = std::fwrite(buffer_.data(), 1, buffer_.size(), to_);
  if (written != buffer_.size())
    fail("cannot write the answer: " + std::generic_category().message(errno));
  buffer_.clear();
}

void Output::flush() {
  drain();
  if (to_ != nullptr && std::fflush(to_) != 0)
    fail("cannot write the answer: " + std::generic_category().message(errno));
}

}  // namespace kw::tool
