// A text of the automation's kind, which its owner frees.
#pragma once

#include <windows.h>
// After the system's general header.
#include <oleauto.h>

#include <string>
#include <string_view>
#include <utility>

class Text {
 public:
  Text() = default;
  explicit Text(std::string_view bytes) : text_(SysAllocStringLen(nullptr, length(bytes))) {
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()), text_,
                        static_cast<int>(length(bytes)));
  }
  explicit Text(const OLECHAR* units) : text_(SysAllocString(units)) {}
  Text(const Text&) = delete;
  Text(Text&& other) noexcept : text_(other.text_) { other.text_ = nullptr; }
  Text& operator=(Text&& other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }
  ~Text() { SysFreeString(text_); }

  friend bool operator==(const Text& a, const Text& b) noexcept {
    return lstrcmpW(a.units(), b.units()) == 0;
  }

  const OLECHAR* units() const noexcept { return text_ != nullptr ? text_ : OLESTR(""); }
  bool empty() const noexcept { return SysStringLen(text_) == 0; }
  // For a parameter by value.
  BSTR get() const noexcept { return text_; }
  // For a parameter by reference, or a result: the callee may put another text in the place.
  BSTR* place() noexcept { return &text_; }
  // Gives the text away.
  BSTR release() noexcept { return std::exchange(text_, nullptr); }
  static Text take(BSTR text) noexcept {
    Text result;
    result.text_ = text;
    return result;
  }

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
