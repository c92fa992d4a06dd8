#include "platform/windows/start_up.h"

#include "base/code_page.h"
#include "base/numeric_text.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

char16_t character(unsigned page, unsigned byte) {
  const char text = static_cast<char>(byte);
  char16_t result = 0;
  // Where the page leaves a byte undefined, it stands for the character of its own number.
  return MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, &text, 1, wide(&result), 1) == 1
             ? result
             : static_cast<char16_t>(byte);
}

void take_code_page() {
  static const auto half = upper_half(GetACP());
  if (!half) return;
  static const CodePage page{*half};
  set_code_page(page);
}

void take_decimal_separator() {
  char16_t text[8] = {};
  if (GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, wide(text), 8) == 2)
    set_decimal_separator(text[0]);
}

}  // namespace

std::optional<std::array<char16_t, 128>> upper_half(unsigned page) {
  CPINFO info = {};
  if (!GetCPInfo(page, &info) || info.MaxCharSize != 1) return std::nullopt;
  for (unsigned byte = 1; byte < 0x80; ++byte)
    if (character(page, byte) != byte) return std::nullopt;
  std::array<char16_t, 128> half{};
  for (unsigned i = 0; i < half.size(); ++i) half[i] = character(page, 0x80 + i);
  return half;
}

}  // namespace kw::platform

// The build has the linker ask for this name, so that the start-up is part of every program.
extern "C" {
extern const bool kw_start_up;
const bool kw_start_up = [] {
  kw::platform::take_code_page();
  kw::platform::take_decimal_separator();
  return true;
}();
}
