#include "platform/message_box.h"

#include <unistd.h>

#include <string>

#include "base/unicode.h"
#include "platform/host_functions.h"

namespace kw::platform {
namespace {

// Whatever cannot be written is lost: there is nowhere else to say so.
void write_to_standard_error(std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = write(STDERR_FILENO, text.data(), text.size());
    if (count <= 0) return;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

MessageAnswer ask_host(const HostFunctions& host, std::u16string_view text,
                       MessageButtons buttons) {
  const BSTR copy = SysAllocStringLen(text.data(), static_cast<unsigned>(text.size()));
  const MessageAnswer answer = host.message_box(host.context, copy, buttons);
  SysFreeString(copy);
  return answer;
}

}  // namespace

MessageAnswer show_message(std::u16string_view text, MessageButtons buttons) {
  const HostFunctions& host = host_functions();
  if (host.message_box != nullptr) return ask_host(host, text, buttons);
  write_to_standard_error(to_utf8(text) + "\n");
  return buttons == MessageButtons::ok ? MessageAnswer::ok : MessageAnswer::abort;
}

}  // namespace kw::platform
