// What is made from a class's description once: its slots, and the look-up of its members.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "frame/description.h"
#include "frame/member_names.h"

namespace kw::frame {

class ClassTable {
 public:
  using Create = ObjectBase* (*)(const ClassTable&);
  using Destroy = void (*)(ObjectBase*) noexcept;

  ClassTable(ClassDescription of_class, Create creation, Destroy destruction);
  ClassTable(const ClassTable&) = delete;
  ClassTable& operator=(const ClassTable&) = delete;

  const ClassDescription& description() const noexcept { return description_; }
  void* const* slots() const noexcept { return slots_.data(); }

  // The method of a dispatch number, or null: a look-up in a table, also for the gaps.
  const Method* method(DISPID id) const noexcept {
    const std::int64_t index = std::int64_t{id} - first_id_;
    if (index < 0 || index >= static_cast<std::int64_t>(by_id_.size())) return nullptr;
    return by_id_[static_cast<std::size_t>(index)];
  }
  // The method of a name in any case, or null.
  const Method* method(std::u16string_view name) const noexcept;

  // Throws what the native class's constructor throws, or std::bad_alloc.
  ObjectBase* create() const { return create_(*this); }
  void destroy(ObjectBase* object) const noexcept { destroy_(object); }

 private:
  ClassDescription description_;
  std::vector<void*> slots_;
  DISPID first_id_ = 0;
  std::vector<const Method*> by_id_;
  MemberNames names_;
  Create create_;
  Destroy destroy_;
};

}  // namespace kw::frame
