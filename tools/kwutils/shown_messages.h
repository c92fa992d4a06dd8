// What the library would show to the user in message boxes.
#pragma once

#include <string>

#include "kwutils/host.h"

namespace kw::tool {

// Stands in for the host's message box during its own life: every message is answered OK or Abort
// and kept.
class ShownMessages {
 public:
  ShownMessages();
  ~ShownMessages();
  ShownMessages(const ShownMessages&) = delete;
  ShownMessages& operator=(const ShownMessages&) = delete;

  bool any() const noexcept { return !first_.empty(); }
  // Fails (exit status 3) with `what` and the first message, where there was one.
  void fail_if_any(const std::string& what) const;

 private:
  static MessageAnswer KW_STDCALL keep(void* self, BSTR text, MessageButtons buttons);

  HostFunctions host_;
  std::string first_;
};

}  // namespace kw::tool
