// One argument of a late-bound call on its way in and, where the method may change it, back out.
#pragma once

#include <cstring>
#include <string_view>
#include <type_traits>
#include <utility>

#include "frame/arguments.h"
#include "frame/array_coercion.h"
#include "frame/coercion.h"
#include "frame/kind.h"

namespace kw::frame {

// Every form has native(), the argument as the member function takes it, and finish(), which puts a
// changed value back where it was not changed in place.

template <class P>
class LateArgument;

// Numbers and truth values by value.
template <class T>
T scalar_in(const VARIANT& value) noexcept {
  if constexpr (std::is_same_v<T, Boolean>) {
    return Boolean::from_bits(value.boolVal);
  } else {
    T scalar;
    std::memcpy(&scalar, &value.llVal, sizeof scalar);
    return scalar;
  }
}

template <class P>
requires(std::is_arithmetic_v<P> || std::is_same_v<P, Boolean>) class LateArgument<P> {
 public:
  LateArgument(VARIANT* given, const Parameter& parameter) {
    if (given == nullptr)
      value_ = static_cast<P>(parameter.default_value);
    else if (given->vt == Native<P>::vartype)
      value_ = scalar_in<P>(*given);
    else
      value_ = scalar_in<P>(coerced(*given, Native<P>::vartype).raw());
  }
  P native() { return value_; }
  void finish() {}

 private:
  P value_{};
};

// Texts by value: read where they lie.
template <>
class LateArgument<std::u16string_view> {
 public:
  LateArgument(VARIANT* given, const Parameter&) {
    if (given == nullptr) return;
    if (void* storage = readable_storage_of(*given, kVtBstr)) {
      const BSTR text = *static_cast<BSTR*>(storage);
      view_ = {text, text != nullptr ? SysStringLen(text) : 0};
    } else {
      view_ = text_ = String::attach(coerced(*given, kVtBstr).release().bstrVal);
    }
  }
  std::u16string_view native() { return view_; }
  void finish() {}

 private:
  String text_;
  std::u16string_view view_;
};

// Variants by value.
template <>
class LateArgument<Variant> {
 public:
  LateArgument(VARIANT* given, const Parameter&) : given_(given) {}
  Variant native() { return given_ != nullptr ? Variant::copy_of(*given_) : Variant::missing(); }
  void finish() {}

 private:
  VARIANT* given_;
};

// Variants by reference: the caller's own, where there is one.
template <class P>
requires std::is_same_v<NativeOf<P>, Variant>
class LateArgument<P&> {
 public:
  LateArgument(VARIANT* given, const Parameter&) : local_(Variant::missing()) {
    if (given == nullptr) return;
    if (given->vt == (kVtByRef | kVtVariant))
      native_ = reinterpret_cast<Variant*>(given->pvarVal);
    else if (std::is_const_v<P> || is_variable(*given))
      native_ = reinterpret_cast<Variant*>(given);
    else
      local_ = Variant::copy_of(*given);
  }
  P& native() { return native_ != nullptr ? *native_ : local_; }
  void finish() {}

 private:
  Variant local_;
  Variant* native_ = nullptr;
};

// Texts, numbers and truth values by reference.
template <class P>
requires(std::is_arithmetic_v<NativeOf<P>> || std::is_same_v<NativeOf<P>, Boolean> ||
         std::is_same_v<NativeOf<P>, String>) class LateArgument<P&> {
  using T = NativeOf<P>;
  static constexpr VARTYPE kKind = Native<T>::vartype;
  static constexpr bool kChanges = !std::is_const_v<P>;

 public:
  LateArgument(VARIANT* given, const Parameter& parameter) : given_(given) {
    if (given == nullptr) {
      use_default(parameter);
      return;
    }
    void* storage = kChanges ? storage_of(*given, kKind) : readable_storage_of(*given, kKind);
    native_ = static_cast<T*>(storage);
    if (native_ == nullptr) take(coerced(*given, kKind));
  }
  P& native() { return native_ != nullptr ? *native_ : local_; }
  void finish() {
    if (!kChanges || native_ != nullptr || given_ == nullptr || !is_variable(*given_)) return;
    if constexpr (std::is_same_v<T, String>)
      write_back(*given_, Variant(local_.copy()));
    else
      write_back(*given_, Variant(local_));
  }

 private:
  void use_default(const Parameter& parameter) {
    if constexpr (std::is_same_v<T, Boolean>)
      local_ = Boolean::from_bits(static_cast<std::int16_t>(parameter.default_value));
    else if constexpr (std::is_arithmetic_v<T>)
      local_ = static_cast<T>(parameter.default_value);
  }
  void take(Variant value) {
    if constexpr (std::is_same_v<T, String>)
      local_ = String::attach(value.release().bstrVal);
    else
      local_ = scalar_in<T>(value.raw());
  }

  VARIANT* given_;
  T* native_ = nullptr;
  T local_{};
};

// Objects and collections by reference. An unset variable takes the object that the method puts
// there.
template <class P>
requires(std::is_same_v<NativeOf<P>, Object> ||
         std::is_same_v<NativeOf<P>, Collection>) class LateArgument<P&> {
  using T = NativeOf<P>;

 public:
  LateArgument(VARIANT* given, const Parameter&) : given_(given) {
    if (given == nullptr) return;
    native_ = static_cast<T*>(storage_of(*given, kVtDispatch));
    if (native_ == nullptr) local_ = T(object_in(*given));
    before_ = address();
  }
  P& native() { return native_ != nullptr ? *native_ : local_; }
  void finish() {
    if (native_ != nullptr || given_ == nullptr || !is_variable(*given_)) return;
    if (address() != before_) write_back(*given_, Variant(Object::share(address())));
  }

 private:
  IDispatch* address() const {
    if constexpr (std::is_same_v<T, Object>)
      return local_.pointer();
    else
      return local_.object().pointer();
  }

  VARIANT* given_;
  T* native_ = nullptr;
  T local_;
  IDispatch* before_ = nullptr;
};

// Arrays by reference.
template <class T>
class LateArgument<Array<T>&> {
  static constexpr VARTYPE kKind = Native<Array<T>>::vartype;

 public:
  LateArgument(VARIANT* given, const Parameter&) : given_(given) {
    if (given == nullptr) return;
    native_ = static_cast<Array<T>*>(storage_of(*given, kKind));
    if (native_ == nullptr) local_ = Array<T>::attach(typed_array(*given, kElementKind<T>));
  }
  Array<T>& native() { return native_ != nullptr ? *native_ : local_; }
  void finish() {
    if (native_ == nullptr && given_ != nullptr && is_variable(*given_))
      write_array_back(*given_, local_.get());
  }

 private:
  VARIANT* given_;
  Array<T>* native_ = nullptr;
  Array<T> local_;
};

template <class T>
class LateArgument<const Array<T>&> : public LateArgument<Array<T>&> {
 public:
  using LateArgument<Array<T>&>::LateArgument;
  void finish() {}
};

}  // namespace kw::frame
