// kw::Collection: an ordered container of values, some of them under a key.
#pragma once

#include <cstdint>
#include <string_view>

#include "kwutils/object.h"
#include "kwutils/variant.h"

namespace kw {

// Refers to a collection object: one that the library made, any object of the caller that answers
// to Item, Add, Count and Remove, or nothing. Copies refer to the same object. A Collection is
// exactly one pointer wide, so that a caller's variable can be worked on in place.
//
// Positions count from 1, in the order of insertion. Keys are unique without regard to case; "" is
// a key like any other. Every access throws error 91 when the variable refers to nothing, and what
// a foreign object reports.
//
//   Collection pumps = Collection::create();
//   pumps.add(String(u"id 'P1'"), u"P1");
//   String text = pumps.item(u"p1").text();
class Collection {
 public:
  Collection() noexcept = default;
  explicit Collection(Object object) noexcept : object_(std::move(object)) {}
  // A new, empty collection of the library's own.
  static Collection create();

  explicit operator bool() const noexcept { return static_cast<bool>(object_); }
  const Object& object() const noexcept { return object_; }
  void reset() noexcept { object_.reset(); }

  std::int32_t count() const;
  // Adds at the end. Error 457 when the key is there already.
  void add(Variant item) const;
  void add(Variant item, std::u16string_view key) const;
  // Error 9 for a position that is none, 5 for a key that is not there.
  Variant item(std::int32_t position) const;
  Variant item(std::u16string_view key) const;
  void remove(std::u16string_view key) const;
  void remove(std::int32_t position) const;
  // Whether an item is stored under the key and has a text form. Never throws.
  bool holds_text(std::u16string_view key) const noexcept;

 private:
  Object object_;
};

static_assert(sizeof(Collection) == sizeof(IDispatch*));

// A reference to an object that is only known to be one (IUnknown): an enumerator, for example.
class Unknown {
 public:
  Unknown() noexcept = default;
  Unknown(Unknown&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Unknown& operator=(Unknown&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Unknown() {
    if (object_) object_->Release();
  }
  static Unknown attach(IUnknown* object) noexcept {
    Unknown result;
    result.object_ = object;
    return result;
  }
  IUnknown* release() noexcept { return std::exchange(object_, nullptr); }

 private:
  IUnknown* object_ = nullptr;
};

}  // namespace kw
