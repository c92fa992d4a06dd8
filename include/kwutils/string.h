// kw::String: the owner of one automation string (BSTR).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "kwutils/automation.h"

namespace kw {

// Counted text of 16-bit code units; it may hold any code unit, zero included. An absent text (a
// null BSTR) equals "". A String is exactly one BSTR wide, so that a caller's BSTR variable can be
// worked on in place as a String.
//
// It moves, and copies only on request:
//
//   String name = u"Inlet";
//   String other = name.copy();
//   std::u16string_view text = name;    // valid until `name` changes
//   String::concat(name, u" ", other);  // u"Inlet Inlet"
//   String::from_utf8("caf\xC3\xA9");   // u"caf\u00E9"
//   name.size();                        // 5
//
// What makes a text throws error 7 (out of memory) when it cannot be held.
class String {
 public:
  String() noexcept = default;
  String(std::u16string_view text);
  String(const char16_t* text) : String(std::u16string_view(text)) {}
  String(const std::u16string& text) : String(std::u16string_view(text)) {}
  String(String&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
  String& operator=(String&& other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }
  String(const String&) = delete;
  String& operator=(const String&) = delete;
  ~String() {
    if (text_ != nullptr) SysFreeString(text_);
  }

  // `length` code units whose values are not set; the terminator is.
  static String uninitialized(std::size_t length);
  // Ill-formed UTF-8 becomes U+FFFD.
  static String from_utf8(std::string_view text);
  // All parts one after the other, in one allocation.
  template <class... Parts>
  static String concat(const Parts&... parts);
  // Takes over a BSTR (null is ""); the String frees it.
  static String attach(BSTR text) noexcept;

  String copy() const { return String(view()); }
  // Unpaired surrogates are written as three bytes each, so that from_utf8 gives them back.
  std::string utf8() const;

  // The code units, valid until the String changes.
  std::u16string_view view() const noexcept {
    return text_ ? std::u16string_view(text_, size()) : std::u16string_view();
  }
  operator std::u16string_view() const noexcept { return view(); }
  // The number of code units.
  std::size_t size() const noexcept { return text_ != nullptr ? SysStringLen(text_) : 0; }
  bool empty() const noexcept { return size() == 0; }
  // The code units, writable; null when the text is absent.
  char16_t* data() noexcept { return text_; }

  // The BSTR, still owned here; null when the text is absent.
  BSTR get() const noexcept { return text_; }
  // Gives the BSTR away; the String is "" afterwards.
  BSTR release() noexcept { return std::exchange(text_, nullptr); }

 private:
  static String join(const std::u16string_view* parts, std::size_t count);

  BSTR text_ = nullptr;
};

static_assert(sizeof(String) == sizeof(BSTR) && std::is_standard_layout_v<String>);

template <class... Parts>
String String::concat(const Parts&... parts) {
  const std::u16string_view views[] = {std::u16string_view(parts)...};
  return join(views, sizeof...(Parts));
}

}  // namespace kw
