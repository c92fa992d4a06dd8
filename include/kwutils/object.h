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
//   Object form = ...;
//   form.put(u"ScaleMode", Variant(std::int16_t{3}));
//   const float left = form.get(u"Left").to_single();
//
// Every access through a name throws: error 91 when there is no object, 438 when the object has no
// such member, else the error that the object itself reports.
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
  // Takes over one reference.
  static Object attach(IDispatch* object) noexcept;
  // Adds a reference of its own.
  static Object share(IDispatch* object) noexcept;

  explicit operator bool() const noexcept { return object_ != nullptr; }
  IDispatch* pointer() const noexcept { return object_; }
  IDispatch* release() noexcept { return std::exchange(object_, nullptr); }
  void reset() noexcept { Object().swap(*this); }
  void swap(Object& other) noexcept { std::swap(object_, other.object_); }

  // Whether the object answers to `name` (any case). False for no object.
  bool answers(std::u16string_view name) const noexcept;
  Variant get(std::u16string_view name) const;
  Variant get_default() const;
  void put(std::u16string_view name, const Variant& value) const;
  // Calls a method with its arguments in order.
  Variant call(std::u16string_view name, std::initializer_list<const Variant*> arguments) const;
  // The members of an enumerable object, one after the other; false when there are no more.
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
  // Puts the next member into `member`; false at the end.
  bool next(Variant& member);

 private:
  friend class Object;
  explicit Members(IEnumVARIANT* members) noexcept : members_(members) {}
  IEnumVARIANT* members_;
};

}  // namespace kw
