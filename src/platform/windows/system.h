// The operating system's own declarations, and its texts as this library's.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <utility>

namespace kw::platform {

// The system's functions take and give 16-bit texts under another name of the same type.
inline const WCHAR* wide(const char16_t* text) { return reinterpret_cast<const WCHAR*>(text); }
inline const WCHAR* wide(const std::u16string& text) { return wide(text.c_str()); }
inline WCHAR* wide(char16_t* text) { return reinterpret_cast<WCHAR*>(text); }

// Calls `ask(buffer, size)`, a function of the system that answers the length of a text, or the
// size it needs, with a buffer that is long enough. Empty when the function fails (answers 0).
template <class Ask>
std::u16string asked_text(Ask ask) {
  std::u16string text(MAX_PATH, u'\0');
  while (true) {
    const DWORD length = ask(wide(text.data()), static_cast<DWORD>(text.size()));
    const bool whole = length < text.size();
    text.resize(whole ? length : length + std::size_t{1});
    if (whole) return text;
  }
}

// An object of the system, closed with its owner.
class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE handle) noexcept : handle_(handle) {}
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~Handle() { close(); }

  HANDLE get() const noexcept { return handle_; }
  explicit operator bool() const noexcept { return handle_ != INVALID_HANDLE_VALUE; }
  // Returns the system's code, 0 when all went well. The handle is gone in either case.
  DWORD close() noexcept {
    if (!*this) return 0;
    return CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) ? 0 : GetLastError();
  }

 private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

}  // namespace kw::platform
