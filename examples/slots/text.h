// A text of the automation's kind, which its owner frees.
#pragma once

#include <windows.h>
// After the system's general header.
#include <oleauto.h>

#include <string>
#include <string_view>

class Text {
 public:
  Text() = default;
  explicit Text(std::string_view bytes) : text_(SysAllocStringLen(nullptr, length(bytes))) {
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()), text_,
                        static_cast<int>(length(bytes)));
  }
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;
  ~Text() { SysFreeString(text_); }

  // For a parameter by value.
  BSTR get() const noexcept { return text_; }
  // For a parameter by reference, or a result: the callee may put another text in the place.
  BSTR* place() noexcept { return &text_; }

  std::string bytes() const {
    const int units = static_cast<int>(SysStringLen(text_));
    const int size = WideCharToMultiByte(CP_ACP, 0, text_, units, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text_, units, result.data(), size, nullptr, nullptr);
    return result;
  }

 private:
  static UINT length(std::string_view bytes) {
    return static_cast<UINT>(
        MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()), nullptr, 0));
  }

  BSTR text_ = nullptr;
};
