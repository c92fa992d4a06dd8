// The arguments of a call through a slot, made from what a late-bound caller would send: variables
// and values of the declared types, as a compiler lays them out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <type_traits>
#include <vector>

#include "kwutils/variant.h"

namespace kw::cases {

// What a variant of a declared type holds.
template <class T>
inline constexpr VARTYPE kSlotKind = kVtEmpty;
template <>
inline constexpr VARTYPE kSlotKind<BSTR> = kVtBstr;
template <>
inline constexpr VARTYPE kSlotKind<std::int16_t> = kVtI2;
template <>
inline constexpr VARTYPE kSlotKind<std::int32_t> = kVtI4;
template <>
inline constexpr VARTYPE kSlotKind<float> = kVtR4;
template <>
inline constexpr VARTYPE kSlotKind<double> = kVtR8;
template <>
inline constexpr VARTYPE kSlotKind<VARIANT> = kVtVariant;
template <>
inline constexpr VARTYPE kSlotKind<IDispatch*> = kVtDispatch;
template <>
inline constexpr VARTYPE kSlotKind<SAFEARRAY*> = kVtArray;

// One argument. It turns into whatever the parameter declares: a value, or a pointer to a variable.
class SlotArgument {
 public:
  explicit SlotArgument(VARIANT& sent) noexcept : sent_(&sent) {}

  template <class T>
  operator T() {
    if constexpr (kSlotKind<T> == kVtEmpty)
      return static_cast<T>(reference(kSlotKind<std::remove_pointer_t<T>>));
    else
      return *static_cast<T*>(value(kSlotKind<T>));
  }
  // Stands for a null pointer, as far as the parameter is one.
  void make_null() noexcept { null_ = true; }
  bool is_reference() const noexcept { return is_reference_; }
  // An unset variable takes over what the call has put into its stand-in.
  void write_back() noexcept;

 private:
  void* reference(VARTYPE kind);
  void* value(VARTYPE kind);
  void* converted(const VARIANT& from, VARTYPE kind);

  VARIANT* sent_;
  Variant stand_in_;  // a variable or value of the declared kind
  VARIANT* unset_ = nullptr;
  bool null_ = false;
  bool is_reference_ = false;
};

// Where the call puts its result.
class SlotResult {
 public:
  explicit SlotResult(VARIANT* at) noexcept : at_(at) {}
  template <class T>
  operator T*() const noexcept {
    if constexpr (std::is_same_v<T, VARIANT>)
      return at_;
    else
      return at_ != nullptr ? reinterpret_cast<T*>(&at_->llVal) : nullptr;
  }

 private:
  VARIANT* at_;
};

class SlotArguments {
 public:
  // `sent`: in the order of the parameters. Omitted trailing ones are made up for.
  SlotArguments(std::vector<VARIANT>& sent, std::size_t parameters, VARIANT* result);

  SlotArgument& at(std::size_t index) { return arguments_[index]; }
  SlotResult result(VARTYPE kind) noexcept;
  void write_back() noexcept;

 private:
  VARIANT left_out_;
  std::deque<SlotArgument> arguments_;
  VARIANT* result_;
};

}  // namespace kw::cases
