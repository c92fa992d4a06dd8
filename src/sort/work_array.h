// WorkArray: the working memory of a sort.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <type_traits>

#include "platform/large_pages.h"

namespace kw::sort {

// `count` elements without values. False when there is no memory for them: a sort then works in
// place.
template <class T>
class WorkArray {
  static_assert(std::is_trivially_destructible_v<T>);

 public:
  explicit WorkArray(std::size_t count) noexcept : elements_(allocate(count), Release{count}) {}

  explicit operator bool() const noexcept { return elements_ != nullptr; }
  T* data() const noexcept { return elements_.get(); }

 private:
  static constexpr auto kPage = std::align_val_t{platform::kLargePage};

  // From this size on the memory is new to the process at every call.
  static bool is_large(std::size_t count) {
    constexpr std::size_t kLarge = std::size_t{32} << 20;
    return count > kLarge / sizeof(T);
  }
  static T* allocate(std::size_t count) noexcept {
    if (count > PTRDIFF_MAX / sizeof(T)) return nullptr;
    if (!is_large(count)) return static_cast<T*>(::operator new(count * sizeof(T), std::nothrow));
    void* const memory = ::operator new(count * sizeof(T), kPage, std::nothrow);
    if (memory != nullptr) platform::prefer_large_pages(memory, count * sizeof(T));
    return static_cast<T*>(memory);
  }
  struct Release {
    std::size_t count;
    void operator()(T* elements) const noexcept {
      if (is_large(count))
        ::operator delete(elements, kPage);
      else
        ::operator delete(elements);
    }
  };
  std::unique_ptr<T, Release> elements_;
};

}  // namespace kw::sort
