#include "platform/message_box.h"

#include <string>

#include "platform/host_functions.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

MessageAnswer ask_host(const HostFunctions& host, std::u16string_view text,
                       MessageButtons buttons) {
  const BSTR copy = SysAllocStringLen(text.data(), static_cast<std::uint32_t>(text.size()));
  const MessageAnswer answer = host.message_box(host.context, copy, buttons);
  SysFreeString(copy);
  return answer;
}

std::u16string window_text(HWND window) {
  std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, u'\0');
  const int length = GetWindowTextW(window, wide(text.data()), static_cast<int>(text.size()));
  return text.substr(0, static_cast<std::size_t>(length));
}

std::u16string program_name() {
  const auto ask = [](WCHAR* buffer, DWORD size) {
    return GetModuleFileNameW(nullptr, buffer, size);
  };
  const std::u16string path = asked_text(ask);
  const std::u16string file = path.substr(path.find_last_of(u"\\/") + 1);
  return file.substr(0, file.find_last_of(u'.'));
}

// Without a caption the system would put its own word for an error there.
std::u16string caption(HWND host) {
  const std::u16string text = host != nullptr ? window_text(host) : std::u16string();
  return text.empty() ? program_name() : text;
}

int show_box(std::u16string_view text, UINT style) {
  const HWND host = GetActiveWindow();
  return MessageBoxW(host, wide(std::u16string(text)), wide(caption(host)),
                     style | (host == nullptr ? MB_TASKMODAL : MB_APPLMODAL));
}

}  // namespace

MessageAnswer show_message(std::u16string_view text, MessageButtons buttons) {
  const HostFunctions& host = host_functions();
  if (host.message_box != nullptr) return ask_host(host, text, buttons);
  if (buttons == MessageButtons::ok) {
    show_box(text, MB_OK);
    return MessageAnswer::ok;
  }
  // Whatever is none of the buttons says that the box was not shown.
  switch (show_box(text, MB_ABORTRETRYIGNORE)) {
    case IDRETRY:
      return MessageAnswer::retry;
    case IDIGNORE:
      return MessageAnswer::ignore;
    default:
      return MessageAnswer::abort;
  }
}

}  // namespace kw::platform
