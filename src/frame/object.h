// The objects that callers hold: a hand-made vtable, a count of references, the native object.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

#include "frame/class_table.h"
#include "kwutils/automation.h"
#include "platform/this_thread.h"

namespace kw::frame {

// Objects alive and factory locks held: the one count that decides whether the library may go.
extern std::atomic<std::int32_t> g_holds;

// Begins as every automation object does, with the pointer to its slots. The second part, which
// announces error info, has slots of its own and finds the object by its place in it.
struct ObjectBase {
  struct ErrorInfoPart {
    void* const* slots;
  };

  explicit ObjectBase(const ClassTable& of_class) noexcept;
  ObjectBase(const ObjectBase&) = delete;
  ObjectBase& operator=(const ObjectBase&) = delete;

  void add_reference() noexcept { ++references; }
  // Destroys the object with its last reference.
  std::uint32_t release() noexcept {
    const std::uint32_t left = --references;
    if (left == 0) table.destroy(this);
    return left;
  }
  bool on_own_thread() const noexcept { return thread == platform::this_thread(); }
  IDispatch* interface_pointer() noexcept { return reinterpret_cast<IDispatch*>(this); }

  void* const* slots;
  ErrorInfoPart error_info_part;
  const ClassTable& table;
  std::uintptr_t thread;
  std::uint32_t references = 1;

 protected:
  ~ObjectBase();
};

template <class T>
struct ObjectOf : ObjectBase {
  explicit ObjectOf(const ClassTable& of_class) : ObjectBase(of_class) {}

  static ObjectBase* create(const ClassTable& of_class) { return new ObjectOf(of_class); }
  static void destroy(ObjectBase* object) noexcept { delete static_cast<ObjectOf*>(object); }

  T instance;
};

template <class T>
T& instance_of(ObjectBase& object) noexcept {
  return static_cast<ObjectOf<T>&>(object).instance;
}

// Keeps an object alive for the length of a call, whatever the caller releases meanwhile.
class CallGuard {
 public:
  explicit CallGuard(ObjectBase& object) noexcept : object_(object) { object_.add_reference(); }
  CallGuard(const CallGuard&) = delete;
  CallGuard& operator=(const CallGuard&) = delete;
  ~CallGuard() { object_.release(); }

 private:
  ObjectBase& object_;
};

}  // namespace kw::frame
