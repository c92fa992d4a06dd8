// Calls through slots, as a compiled client makes them.
#pragma once

#include <string_view>
#include <vector>

#include "failure_of_status.h"
#include "kwutils/object.h"

namespace kw::cases {

// `sent`: in the order of the parameters. What a compiler would refuse answers the standard status.
Called call_slot(const Object& object, std::string_view class_name, std::string_view method,
                 std::vector<VARIANT> sent);

}  // namespace kw::cases
