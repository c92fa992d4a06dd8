// kw::Variant: a value of any automation type, or the missing marker.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "kwutils/automation.h"
#include "kwutils/boolean.h"
#include "kwutils/object.h"
#include "kwutils/string.h"

namespace kw {

// Owns one VARIANT and is exactly as wide, so that a caller's variant can be worked on in place.
// Reading follows by-reference contents, so a variable of any kind reads as its value.
//
//   Variant separator = String(u";");
//   Variant left_out = Variant::missing();
//
// Conversions throw error 13 for a value that has no such form, 6 for a number too large, and what
// an object reports when its default value cannot be read.
class Variant {
 public:
  Variant() noexcept : value_{} {}
  Variant(String text) noexcept;
  Variant(const char16_t* text) : Variant(String(text)) {}
  explicit Variant(std::u16string_view text) : Variant(String(text)) {}
  explicit Variant(std::int16_t number) noexcept;
  explicit Variant(std::int32_t number) noexcept;
  explicit Variant(float number) noexcept;
  explicit Variant(double number) noexcept;
  Variant(Boolean value) noexcept;
  Variant(bool) = delete;  // a Boolean, lest it becomes a number
  Variant(Object object) noexcept;
  Variant(Variant&& other) noexcept : value_(other.value_) { other.value_.vt = kVtEmpty; }
  Variant& operator=(Variant&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() {
    if (value_.vt >= kVtBstr) VariantClear(&value_);  // what lies below owns nothing
  }

  // What an optional parameter holds when the caller leaves it out.
  static Variant missing() noexcept;
  // A copy of any VARIANT, by-reference contents followed.
  static Variant copy_of(const VARIANT& value);
  Variant copy() const { return copy_of(value_); }

  bool is_missing() const noexcept;
  bool is_empty() const noexcept { return contents().vt == kVtEmpty; }
  // Holds an object variable, be it set or not.
  bool is_object() const noexcept;
  bool is_text() const noexcept { return contents().vt == kVtBstr; }

  String text() const;
  // The text itself where the value is text; else its text form, kept in `scratch`.
  std::u16string_view text(String& scratch) const;
  std::int16_t to_int16() const;
  std::int32_t to_int32() const;
  float to_single() const;
  double to_double() const;
  Boolean to_boolean() const;
  // A reference to the object held; error 13 when it is no object, 91 when the variable is unset.
  Object to_object() const;

  // The value itself, with by-reference contents followed.
  const VARIANT& contents() const noexcept;
  const VARIANT& raw() const noexcept { return value_; }
  VARIANT* address() noexcept { return &value_; }
  VARIANT release() noexcept;
  // Puts an object into the variable: into the one referred to, where this is a reference.
  void store(Object object);
  void store(String text);

 private:
  Variant converted(VARTYPE kind) const;

  VARIANT value_;
};

static_assert(sizeof(Variant) == sizeof(VARIANT));

}  // namespace kw
