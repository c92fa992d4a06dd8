// Callers may give one variable for several parameters. A text that a method only reads must then
// not change under its eyes while the method changes the variable: it is copied before the call. So
// a method sees what the variable held when it was called.
#pragma once

#include <string_view>
#include <type_traits>
#include <utility>

#include "frame/kind.h"

namespace kw::frame {

// The variables of one call that the method may change.
class ChangedTexts {
 public:
  template <class P>
  void note(P&& native) {
    if constexpr (std::is_same_v<P, String&>) variables_[count_++] = &native;
  }
  bool holds(const char16_t* text) const noexcept {
    for (std::size_t i = 0; i < count_; ++i)
      if (variables_[i]->get() == text && text != nullptr) return true;
    return false;
  }

 private:
  const String* variables_[16];
  std::size_t count_ = 0;
};

// Hands one native argument on; texts that are only read, as copies where they have to be.
template <class P>
class Unaliased {
 public:
  Unaliased(P native, const ChangedTexts&) : native_(std::forward<P>(native)) {}
  P get() { return std::forward<P>(native_); }

 private:
  P native_;
};

template <>
class Unaliased<std::u16string_view> {
 public:
  Unaliased(std::u16string_view native, const ChangedTexts& changed) : native_(native) {
    if (changed.holds(native.data())) native_ = copy_ = String(native);
  }
  std::u16string_view get() { return native_; }

 private:
  String copy_;
  std::u16string_view native_;
};

template <>
class Unaliased<const String&> {
 public:
  Unaliased(const String& native, const ChangedTexts& changed) : native_(&native) {
    if (!changed.holds(native.get())) return;
    copy_ = native.copy();
    native_ = &copy_;
  }
  const String& get() { return *native_; }

 private:
  String copy_;
  const String* native_;
};

// A text may be an element of an array of the same call. The array is then locked while the method
// runs, as clients lock it that pass elements by reference: it cannot be resized under the text.
class ElementLock {
 public:
  ElementLock() = default;
  ElementLock(const ElementLock&) = delete;
  ElementLock& operator=(const ElementLock&) = delete;
  ~ElementLock() {
    if (locked_ != nullptr) SafeArrayUnlock(locked_);
  }
  template <class P, class Q>
  void lock_around(P&& array, Q&& text) {
    if constexpr (std::is_same_v<NativeOf<P>, Array<String>> && kByReference<Q> &&
                  std::is_same_v<NativeOf<Q>, String>) {
      SAFEARRAY* const elements = array.get();
      if (locked_ != nullptr || elements == nullptr || elements->pvData == nullptr) return;
      const auto* const first = static_cast<const char*>(elements->pvData);
      const auto* const place = reinterpret_cast<const char*>(&text);
      const std::size_t size = array.size() * sizeof(String);
      if (place < first || place >= first + size) return;
      if (SafeArrayLock(elements) >= 0) locked_ = elements;
    }
  }

 private:
  SAFEARRAY* locked_ = nullptr;
};

template <class P>
inline constexpr bool kTextReference = kByReference<P>&& std::is_same_v<NativeOf<P>, String>;
template <class P>
inline constexpr bool kTextArray = std::is_same_v<NativeOf<P>, Array<String>>;

// Calls `method` of `instance` with native arguments that may alias each other.
template <auto Method, class T, class... P>
decltype(auto) call_unaliased(T& instance, P... natives) {
  [[maybe_unused]] ElementLock lock;
  if constexpr ((kTextReference<P> || ...) && (kTextArray<P> || ...)) {
    const auto around = [&]<class A>(A&& array) {
      (lock.lock_around<A, P>(std::forward<A>(array), std::forward<P>(natives)), ...);
    };
    (around.template operator()<P>(std::forward<P>(natives)), ...);
  }
  if constexpr ((std::is_same_v<P, String&> || ...) && sizeof...(P) > 1) {
    ChangedTexts changed;
    (changed.note<P>(std::forward<P>(natives)), ...);
    return (instance.*Method)(Unaliased<P>(std::forward<P>(natives), changed).get()...);
  } else {
    return (instance.*Method)(std::forward<P>(natives)...);
  }
}

}  // namespace kw::frame
