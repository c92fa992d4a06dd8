// The linker leads the program's calls of malloc, realloc and free here (--wrap).
#include "store/counted_memory.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

std::size_t held = 0;
std::size_t held_at_start = 0;
std::size_t peak = 0;

void* took(void* memory) {
  if (memory == nullptr) return nullptr;
  held += malloc_usable_size(memory);
  peak = std::max(peak, held);
  return memory;
}

void gives_back(void* memory) {
  if (memory != nullptr) held -= malloc_usable_size(memory);
}

}  // namespace

// Visible, since the linker takes them for what the shared libraries ask for.
#pragma GCC visibility push(default)

extern "C" {

void* __real_malloc(std::size_t size);
void* __real_realloc(void* memory, std::size_t size);
void __real_free(void* memory);

void* __wrap_malloc(std::size_t size) { return took(__real_malloc(size)); }

void* __wrap_realloc(void* memory, std::size_t size) {
  gives_back(memory);
  return took(__real_realloc(memory, size));
}

void __wrap_free(void* memory) {
  gives_back(memory);
  __real_free(memory);
}

}  // extern "C"

#pragma GCC visibility pop

void* operator new(std::size_t size) {
  void* const memory = std::malloc(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace kw::store {

void restart_memory_peak() noexcept { peak = held_at_start = held; }

std::size_t memory_peak() noexcept { return peak - held_at_start; }

}  // namespace kw::store
