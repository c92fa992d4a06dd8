// System calls for which every file whose name ends in "a.tmp" lies on a volume of its own.
#pragma once

#include <string_view>

#include "platform/linux/system_calls.h"

namespace kw::fault {

class TwoVolumes : public platform::SystemCalls {
 public:
  int rename(const char* from, const char* to) override {
    constexpr std::string_view kEnd = "a.tmp";
    const std::string_view name(from);
    const bool crosses =
        name.size() >= kEnd.size() && name.substr(name.size() - kEnd.size()) == kEnd;
    if (!crosses) return SystemCalls::rename(from, to);
    errno = EXDEV;
    return -1;
  }
};

}  // namespace kw::fault
