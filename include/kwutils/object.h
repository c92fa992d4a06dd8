// kw::Object: a reference to a late-bound object of the caller.
#pragma once

#include <initializer_list>
#include <string_view>
#include <utility>

#include "kwutils/automation.h"

namespace kw {

class Variant;

// Owns one reference to an object that answers to names (IDispatch), or refers to nothing. An
// Object is exactly one pointer wide, so that a caller's object variable can be worked on in place.
//
//   Object box = Object::share(text_box);  // a caller's IDispatch*
//   box.put(u"Text", u"12.5");
//   box.get(u"Text").to_double();  // 12.5
//   box.get_default().text();      // u"12.5" where Text is the default property
//   box.answers(u"Caption");       // false
//
// Every access to a member throws: error 91 when there is no object, 438 when the object has no
// such member, 13 or 6 when it cannot take a value, 7 without memory. What the object reports of
// its own is passed on with its number, source and description; any other failure is error 5.
class Object {
 public:
  Object() noexcept = default;
  Object(std::nullptr_t) noexcept {}
  Object(Object&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Object& operator=(Object&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  Object(const Object& other) noexcept : object_(other.object_) {
    if (object_) object_->AddRef();
  }
  Object& operator=(const Object& other) noexcept {
    Object copied(other);
    return *this = std::move(copied);
  }
  ~Object() {
    if (object_) object_->Release();
  }
  // Takes over one reference, without adding one; null refers to nothing.
  static Object attach(IDispatch* object) noexcept;
  // Adds a reference of its own; null refers to nothing.
  static Object share(IDispatch* object) noexcept;

  // Whether it refers to an object.
  explicit operator bool() const noexcept { return object_ != nullptr; }
  // The object, still referred to here.
  IDispatch* pointer() const noexcept { return object_; }
  // Gives the reference away, to be released by who takes it; this one refers to nothing then.
  IDispatch* release() noexcept { return std::exchange(object_, nullptr); }
  void reset() noexcept { Object().swap(*this); }
  void swap(Object& other) noexcept { std::swap(object_, other.object_); }

  // Whether the object answers to `name` (any case). False for no object.
  bool answers(std::u16string_view name) const noexcept;
  // The value of the property `name`, or the result of the method `name` without arguments; case
  // matters only where it does to the object.
  Variant get(std::u16string_view name) const;
  // The value of the default property: what the object stands for where a value is asked for.
  Variant get_default() const;
  // Gives the property `name` a value, which stays the caller's; an object is handed over as a
  // value like any other.
  void put(std::u16string_view name, const Variant& value) const;
  // Calls a method with its arguments in order, and hands out its result, Empty where it has none.
  // What an argument refers to may be changed by the method.
  //
  //   const Variant item(u"pump"), key(u"P1");
  //   const Object list = Collection::create().object();
  //   list.call(u"Add", {&item, &key});
  //   list.get(u"Count").to_int32();  // 1
  Variant call(std::u16string_view name, std::initializer_list<const Variant*> arguments) const;
  // The members of an enumerable object, one after the other. Error 438 when the object cannot be
  // enumerated.
  //
  //   Variant member;
  //   auto members = list.members();
  //   members.next(member);  // true
  //   member.text();         // u"pump"
  //   members.next(member);  // false
  class Members;
  Members members() const;

 private:
  std::int32_t id_of(std::u16string_view name) const;
  Variant invoke(std::int32_t id, std::uint16_t kind, DISPPARAMS& parameters) const;

  IDispatch* object_ = nullptr;
};

static_assert(sizeof(Object) == sizeof(IDispatch*));

// Walks the members of an enumerable object, in the object's own order.
class Object::Members {
 public:
  Members(const Members&) = delete;
  Members& operator=(const Members&) = delete;
  ~Members();
  // Puts the next member into `member`; false, and `member` as it was, at the end. Errors as for
  // every access.
  bool next(Variant& member);

 private:
  friend class Object;
  explicit Members(IEnumVARIANT* members) noexcept : members_(members) {}
  IEnumVARIANT* members_;
};

}  // namespace kw
