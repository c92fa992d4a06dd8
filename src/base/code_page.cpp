#include "base/code_page.h"

#include <cstddef>
#include <cstring>

namespace kw {
namespace {

constexpr auto upper_half_1252() {
  constexpr char16_t kFrom80To9F[] = {
      0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
      0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
  std::array<char16_t, 128> units{};
  for (unsigned i = 0; i < 128; ++i) {
    units[i] = i < 32 ? kFrom80To9F[i] : static_cast<char16_t>(0x80 + i);
  }
  return units;
}

constexpr CodePage kPage1252(upper_half_1252());

// Bytes are widened, and code units narrowed, in runs of this many: enough for the compiler's
// vector code, few enough that one unusual character costs little.
constexpr std::size_t kRun = 64;
constexpr std::size_t kWord = sizeof(std::uint64_t);
constexpr std::uint64_t kOnes = 0x0101'0101'0101'0101;

// Whether every byte of a run stands for the character of its own number. Those are the ASCII bytes
// and, in pages that are Latin 1 there (`above_9f` is then all ones), the bytes from A0.
bool is_plain(const char* bytes, std::uint64_t above_9f) noexcept {
  std::uint64_t special = 0;
  for (std::size_t at = 0; at < kRun; at += kWord) {
    std::uint64_t word;
    std::memcpy(&word, bytes + at, kWord);
    special |= word & ~((word << 1 | word << 2) & above_9f);
  }
  return (special & kOnes * 0x80) == 0;
}

void widen_plain(const char* bytes, char16_t* out) noexcept {
  for (std::size_t at = 0; at < kRun; ++at) out[at] = static_cast<unsigned char>(bytes[at]);
}

void widen_any(const CodePage& page, std::string_view bytes, char16_t* out) noexcept {
  for (const char byte : bytes) *out++ = page.decode(static_cast<unsigned char>(byte));
}

bool is_ascii(const char16_t* units) noexcept {
  unsigned all = 0;
  for (std::size_t at = 0; at < kRun; ++at) all |= units[at];
  return all < 0x80;
}

void narrow_ascii(const char16_t* units, char* out) noexcept {
  for (std::size_t at = 0; at < kRun; ++at) out[at] = static_cast<char>(units[at]);
}

// False when the page lacks a character, which is then written as "?".
bool narrow_any(const CodePage& page, std::u16string_view units, char* out) noexcept {
  bool complete = true;
  for (const char16_t unit : units) {
    const auto byte = page.encode(unit);
    complete = complete && byte.has_value();
    *out++ = static_cast<char>(byte.value_or(static_cast<unsigned char>('?')));
  }
  return complete;
}

bool narrow_to(std::u16string_view text, char* out) noexcept {
  const CodePage& page = code_page();
  bool complete = true;
  for (; text.size() >= kRun; text.remove_prefix(kRun), out += kRun) {
    if (is_ascii(text.data())) {
      narrow_ascii(text.data(), out);
    } else {
      complete = narrow_any(page, text.substr(0, kRun), out) && complete;
    }
  }
  return narrow_any(page, text, out) && complete;
}

}  // namespace

namespace detail {
constinit const CodePage* current_code_page = &kPage1252;
}

void set_code_page(const CodePage& page) noexcept { detail::current_code_page = &page; }

const CodePage& code_page_1252() noexcept { return kPage1252; }

void widen(std::string_view bytes, char16_t* out) noexcept {
  const CodePage& page = code_page();
  const std::uint64_t above_9f = page.is_latin_1() ? ~std::uint64_t{0} : 0;
  for (; bytes.size() >= kRun; bytes.remove_prefix(kRun), out += kRun) {
    if (is_plain(bytes.data(), above_9f)) {
      widen_plain(bytes.data(), out);
    } else {
      widen_any(page, bytes.substr(0, kRun), out);
    }
  }
  widen_any(page, bytes, out);
}

std::u16string widen(std::string_view bytes) {
  std::u16string result(bytes.size(), u'\0');
  widen(bytes, result.data());
  return result;
}

void narrow_append(std::u16string_view text, std::string& out) {
  const std::size_t before = out.size();
  out.resize(before + text.size());
  narrow_to(text, out.data() + before);
}

std::string narrow(std::u16string_view text) {
  std::string result;
  narrow_append(text, result);
  return result;
}

bool narrow_exact(std::u16string_view text, std::string& out) {
  out.resize(text.size());
  return narrow_to(text, out.data());
}

}  // namespace kw
