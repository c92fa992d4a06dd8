#include "base/code_page.h"

#include <cstddef>
#include <cstring>

#include "base/code_units.h"

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

// What the vector code takes at a time; the end of a longer text is one more run, which overlaps
// the one before it.
constexpr std::size_t kRun = 16;
using Bytes = signed char __attribute__((vector_size(kRun)));
using OwnBytes = unsigned char __attribute__((vector_size(kRun)));
using Units = char16_t __attribute__((vector_size(2 * kRun)));
using Words = std::uint64_t __attribute__((vector_size(kRun)));

// A byte is plain when it stands for the character of its own number: ASCII and, in pages that are
// Latin 1 there, A0 to FF. As signed numbers the others are those below this one.
signed char least_plain(const CodePage& page) noexcept { return page.is_latin_1() ? -0x60 : 0; }

// Widens a run and gives true when all its bytes are plain; else does nothing.
bool widen_plain(const char* from, char16_t* to, signed char least) noexcept {
  Bytes bytes;
  std::memcpy(&bytes, from, sizeof bytes);
  const auto special = reinterpret_cast<Words>(bytes < least);
  if ((special[0] | special[1]) != 0) return false;
  const Units units = __builtin_convertvector(reinterpret_cast<OwnBytes>(bytes), Units);
  std::memcpy(to, &units, sizeof units);
  return true;
}

void widen_any(const CodePage& page, std::string_view bytes, char16_t* out) noexcept {
  for (const char byte : bytes) *out++ = page.decode(static_cast<unsigned char>(byte));
}

// Narrows a run and gives true when it is ASCII throughout; else does nothing.
bool narrow_ascii(const char16_t* from, char* to) noexcept {
  Units units;
  std::memcpy(&units, from, sizeof units);
  std::uint64_t words[4];
  std::memcpy(words, from, sizeof words);
  if (!detail::is_ascii(words[0] | words[1] | words[2] | words[3])) return false;
  const OwnBytes bytes = __builtin_convertvector(units, OwnBytes);
  std::memcpy(to, &bytes, sizeof bytes);
  return true;
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

// Calls run(position) for runs that cover a text of `size`, or whole(size) when that is less than
// one.
template <class Run, class Whole>
void for_runs(std::size_t size, Run run, Whole whole) noexcept {
  if (size < kRun) return whole(size);
  for (std::size_t at = 0; at + kRun < size; at += kRun) run(at);
  run(size - kRun);
}

bool narrow_to(std::u16string_view text, char* out) noexcept {
  const CodePage& page = code_page();
  bool complete = true;
  const auto any = [&](std::size_t at, std::size_t size) {
    complete = narrow_any(page, text.substr(at, size), out + at) && complete;
  };
  for_runs(
      text.size(),
      [&](std::size_t at) {
        if (!narrow_ascii(text.data() + at, out + at)) any(at, kRun);
      },
      [&](std::size_t size) { any(0, size); });
  return complete;
}

}  // namespace

namespace detail {
constinit const CodePage* current_code_page = &kPage1252;
}

void set_code_page(const CodePage& page) noexcept { detail::current_code_page = &page; }

const CodePage& code_page_1252() noexcept { return kPage1252; }

void widen(std::string_view bytes, char16_t* out) noexcept {
  const CodePage& page = code_page();
  const signed char least = least_plain(page);
  for_runs(
      bytes.size(),
      [&](std::size_t at) {
        if (!widen_plain(bytes.data() + at, out + at, least)) {
          widen_any(page, bytes.substr(at, kRun), out + at);
        }
      },
      [&](std::size_t size) { widen_any(page, bytes.substr(0, size), out); });
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
