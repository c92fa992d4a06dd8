// WorkArray: the working memory of a sort.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>

namespace kw::sort {

// `count` elements without values. False when there is no memory for them: a sort then works in
// place.
template <class T>
class WorkArray {
  static_assert(std::is_trivially_destructible_v<T>);

 public:
  explicit WorkArray(std::size_t count) noexcept
      : elements_(count > PTRDIFF_MAX / sizeof(T)
                      ? nullptr
                      : static_cast<T*>(::operator new(count * sizeof(T), std::nothrow))) {}

  explicit operator bool() const noexcept { return elements_ != nullptr; }
  T* data() const noexcept { return elements_.get(); }

 private:
  struct Release {
    void operator()(T* elements) const noexcept { ::operator delete(elements); }
  };
  std::unique_ptr<T, Release> elements_;
};

}  // namespace kw::sort
