// Every method as a compiled client calls it: through its slot, with the types of the interface
// definitions. Made from those definitions by make_slot_calls.
#pragma once

#include <span>
#include <string_view>

#include "slot_arguments.h"

namespace kw::cases {

struct SlotCall {
  std::string_view class_name;
  std::string_view method;
  std::size_t parameters;
  // `object`: the class's own interface.
  HRESULT (*call)(IUnknown* object, SlotArguments& sent);
};

std::span<const SlotCall> slot_calls();

}  // namespace kw::cases
