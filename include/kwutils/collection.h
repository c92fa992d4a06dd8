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
// a key like any other. Every access throws error 91 when the variable refers to nothing; a foreign
// object's own errors are passed on, and 438 when it lacks the member.
//
//   Collection pumps = Collection::create();
//   pumps.add(u"id 'P1'", u"P1");
//   pumps.add(u"id 'P2'");
//   pumps.item(u"p1").text();  // u"id 'P1'"
//   pumps.remove(u"P1");
//   pumps.item(1).text();  // u"id 'P2'"; it has moved up
//   pumps.count();         // 1
class Collection {
 public:
  Collection() noexcept = default;
  explicit Collection(Object object) noexcept : object_(std::move(object)) {}
  // A new, empty collection of the library's own. Error 7 when there is no memory for it.
  static Collection create();

  // Whether it refers to an object.
  explicit operator bool() const noexcept { return static_cast<bool>(object_); }
  // The object referred to, for calls of its members by name.
  const Object& object() const noexcept { return object_; }
  // Makes this variable refer to nothing; the collection keeps its items for who else refers to it.
  void reset() noexcept { object_.reset(); }

  // The number of items. Of a foreign object, also errors 13 and 6: its Count is no number, or none
  // of 32 bits.
  std::int32_t count() const;
  // Adds at the end, without a key or under one. Error 457 when the key is there already; the
  // collection is then unchanged.
  void add(Variant item) const;
  void add(Variant item, std::u16string_view key) const;
  // A copy of the item. Error 9 for a position that is none, 5 for a key that is not there.
  Variant item(std::int32_t position) const;
  Variant item(std::u16string_view key) const;
  // Takes the item out; those behind it move up by one position, with their keys. Error 9 for a
  // position that is none, 5 for a key that is not there; the collection is then unchanged.
  void remove(std::u16string_view key) const;
  void remove(std::int32_t position) const;
  // Whether an item is stored under the key and has a text form. Never throws.
  bool holds_text(std::u16string_view key) const noexcept;

 private:
  Object object_;
};

static_assert(sizeof(Collection) == sizeof(IDispatch*));

// A reference to an object that is only known to be one (IUnknown): an enumerator, for example. It
// is released when this goes out of scope.
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
  // Takes over one reference, without adding one; null refers to nothing. Raises no error.
  //
  //   IUnknown* const members = Unknown::attach(object).release();  // the caller's own again
  static Unknown attach(IUnknown* object) noexcept {
    Unknown result;
    result.object_ = object;
    return result;
  }
  // Gives the reference away, to be released by who takes it; this one refers to nothing then.
  IUnknown* release() noexcept { return std::exchange(object_, nullptr); }

 private:
  IUnknown* object_ = nullptr;
};

}  // namespace kw
