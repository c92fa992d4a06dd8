#include "frame/slot.h"

namespace kw::frame {

const Parameter* optional_parameter(const ClassTable& of_class, void (*slot)(),
                                    std::size_t index) noexcept {
  for (const Method& method : of_class.description().methods) {
    if (method.slot != slot) continue;
    const Parameter& parameter = method.parameters[index];
    return parameter.optional ? &parameter : nullptr;
  }
  return nullptr;
}

}  // namespace kw::frame
