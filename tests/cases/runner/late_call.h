// Late-bound calls, as a script makes them.
#pragma once

#include <string>
#include <vector>

#include "failure_of_status.h"
#include "kwutils/object.h"

namespace kw::cases {

// `sent`: in the order of the parameters.
Called call_late(const Object& object, const std::string& method, std::vector<VARIANT> sent);

}  // namespace kw::cases
