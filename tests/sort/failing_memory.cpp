#include "sort/failing_memory.h"

#include <cstdlib>
#include <new>

namespace kw::sort {

bool NoWorkMemory::active_ = false;

}  // namespace kw::sort

void* operator new(std::size_t size) {
  if (void* memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return kw::sort::NoWorkMemory::active() ? nullptr : std::malloc(size > 0 ? size : 1);
}

void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  if (kw::sort::NoWorkMemory::active()) return nullptr;
  const auto unit = static_cast<std::size_t>(alignment);
  return std::aligned_alloc(unit, (size + unit - 1) / unit * unit);
}

void operator delete(void* memory, std::align_val_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::align_val_t, const std::nothrow_t&) noexcept {
  std::free(memory);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
