#include "tool/shown_messages.h"

#include <algorithm>

#include "base/unicode.h"
#include "platform/host_functions.h"
#include "tool/failure.h"

namespace kw::tool {

// One context serves all functions of a host, so its other ones stand aside, too.
ShownMessages::ShownMessages() : host_(platform::host_functions()) {
  HostFunctions ours;
  ours.context = this;
  ours.message_box = &keep;
  set_host(ours);
}

ShownMessages::~ShownMessages() { set_host(host_); }

MessageAnswer KW_STDCALL ShownMessages::keep(void* self, BSTR text, MessageButtons buttons) {
  std::string& first = static_cast<ShownMessages*>(self)->first_;
  if (first.empty()) {
    first = to_utf8({text, SysStringLen(text)});
    std::replace(first.begin(), first.end(), '\r', ' ');
  }
  return buttons == MessageButtons::ok ? MessageAnswer::ok : MessageAnswer::abort;
}

void ShownMessages::fail_if_any(const std::string& what) const {
  if (!first_.empty()) fail(what + ": " + first_);
}

}  // namespace kw::tool
