#include "platform/large_pages.h"

namespace kw::platform {

// Large pages need a privilege there that callers do not have.
void prefer_large_pages(void*, std::size_t) noexcept {}

}  // namespace kw::platform
