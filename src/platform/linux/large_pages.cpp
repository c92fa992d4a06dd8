#include "platform/large_pages.h"

#include <sys/mman.h>

namespace kw::platform {

void prefer_large_pages(void* memory, std::size_t bytes) noexcept {
  madvise(memory, bytes, MADV_HUGEPAGE);
}

}  // namespace kw::platform
