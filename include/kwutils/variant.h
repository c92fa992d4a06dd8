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
//   Variant(2.5).to_int32();        // 2: halves go to the even neighbour
//   Variant(u" 1e3 ").to_int16();   // 1000
//   Variant(Boolean(true)).text();  // u"True"
//   left_out.is_missing();          // true
//   left_out.is_empty();            // false
//
// Conversions throw error 13 for a value that has no such form, 6 for a number too large, 91 for an
// object variable that is not set, and what an object reports when its default value cannot be
// read.
class Variant {
 public:
  Variant() noexcept : value_{} {}
  Variant(String text) noexcept;
  Variant(const char16_t* text) : Variant(String(text)) {}
  explicit Variant(std::u16string_view text) : Variant(String(text)) {}
  // A number of exactly this kind: whole of 16 or 32 bits, single or double precision. Only on
  // request, for the kind is what a caller's object sees.
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
  // A copy of any VARIANT, by-reference contents followed; an object gets one more reference.
  // Errors: 7 (out of memory), 13 or 5 for what is no VARIANT.
  static Variant copy_of(const VARIANT& value);
  Variant copy() const { return copy_of(value_); }

  // Whether it is the missing marker, which is neither Empty nor "": the caller left the parameter
  // out.
  bool is_missing() const noexcept;
  // Whether it holds no value yet.
  bool is_empty() const noexcept { return contents().vt == kVtEmpty; }
  // Holds an object variable, be it set or not.
  bool is_object() const noexcept;
  // Whether it holds a text, not merely what has a text form.
  bool is_text() const noexcept { return contents().vt == kVtBstr; }

  // The text form: a text itself, a number ("0.5", "1E+20"), "True" or "False", "" for Empty, that
  // of an object's default value.
  String text() const;
  // The text itself where the value is text; else its text form, kept in `scratch`.
  std::u16string_view text(String& scratch) const;
  // The value as a number: whole numbers are rounded, halves to the even neighbour. A text counts
  // when all of it reads as a number, blanks around it aside; true is -1, false and Empty are 0.
  std::int16_t to_int16() const;
  std::int32_t to_int32() const;
  float to_single() const;
  double to_double() const;
  // The value as a truth value: false for 0 and Empty, true for any other number, "True" and
  // "False" in any case, or what a text's number gives.
  Boolean to_boolean() const;
  // A reference to the object held. Error 13 when it is no object, 91 when the variable is unset,
  // 438 when the object does not answer to names.
  Object to_object() const;

  // The value itself, with by-reference contents followed.
  const VARIANT& contents() const noexcept;
  // The value as it is, a reference where it is one; still owned here.
  const VARIANT& raw() const noexcept { return value_; }
  // For functions that fill a VARIANT; what it held must be nothing that is owned.
  VARIANT* address() noexcept { return &value_; }
  // Gives the value away, to be cleared by who takes it; this one is Empty then.
  VARIANT release() noexcept;
  // Puts an object or a text into the variable, or into the one that this refers to; what that held
  // is released. Error 13 when this refers to a variable of another kind, which stays as it is.
  //
  //   Variant variable;
  //   variable.store(String(u"pump"));
  //   variable.text();  // u"pump"
  void store(Object object);
  void store(String text);

 private:
  Variant converted(VARTYPE kind) const;

  VARIANT value_;
};

static_assert(sizeof(Variant) == sizeof(VARIANT));

}  // namespace kw
