#include "frame/object.h"

#include "frame/standard_slots.h"

namespace kw::frame {

std::atomic<std::int32_t> g_holds{0};

ObjectBase::ObjectBase(const ClassTable& of_class) noexcept
    : slots(of_class.slots()),
      error_info_part{error_info_slots()},
      table(of_class),
      thread(platform::this_thread()) {
  g_holds.fetch_add(1, std::memory_order_relaxed);
}

ObjectBase::~ObjectBase() { g_holds.fetch_sub(1, std::memory_order_relaxed); }

}  // namespace kw::frame
