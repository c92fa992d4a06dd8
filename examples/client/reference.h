// A counted reference to an object, given back at the end.
#pragma once

#include <utility>

template <class Interface>
class Reference {
 public:
  Reference() = default;
  // Takes a reference over.
  explicit Reference(Interface* object) noexcept : object_(object) {}
  Reference(Reference&& other) noexcept : object_(other.object_) { other.object_ = nullptr; }
  Reference& operator=(Reference&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Reference() {
    if (object_ != nullptr) object_->Release();
  }

  Interface* operator->() const noexcept { return object_; }
  Interface* get() const noexcept { return object_; }
  // For a parameter by reference, or a result: the callee may put another object in the place.
  Interface** place() noexcept { return &object_; }
  void** untyped_place() noexcept { return reinterpret_cast<void**>(&object_); }

 private:
  Interface* object_ = nullptr;
};
