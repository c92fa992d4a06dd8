// Counted texts. A block is: the length in bytes (4 bytes), the text, a terminator.
#include <cstdlib>
#include <cstring>
#include <limits>

#include "kwutils/automation.h"
#include "platform/linux/automation/live_counts.h"

namespace kw {
namespace {

constexpr std::size_t kPrefix = sizeof(std::uint32_t);
constexpr std::size_t kOverhead = kPrefix + sizeof(char16_t);
// One byte more than the longest text leaves room for the padding of an odd length.
constexpr std::size_t kMostBytes = std::numeric_limits<std::uint32_t>::max() - kOverhead - 1;

char* block_of(BSTR text) { return reinterpret_cast<char*>(text) - kPrefix; }

BSTR adopt(void* block, std::size_t bytes) {
  const auto length = static_cast<std::uint32_t>(bytes);
  std::memcpy(block, &length, sizeof length);
  return reinterpret_cast<BSTR>(static_cast<char*>(block) + kPrefix);
}

// An uninitialised text of an even number of bytes, terminated.
BSTR allocate(std::size_t bytes) {
  if (bytes > kMostBytes) return nullptr;
  void* const block = std::malloc(bytes + kOverhead);
  if (block == nullptr) return nullptr;
  live::add(&live::Counts::strings, 1);
  const BSTR text = adopt(block, bytes);
  text[bytes / sizeof(char16_t)] = u'\0';
  return text;
}

std::size_t length_of(const OLECHAR* text) {
  std::size_t length = 0;
  while (text[length] != u'\0') ++length;
  return length;
}

BSTR copy_of(const OLECHAR* text, std::size_t length) {
  const BSTR copy = allocate(length * sizeof(OLECHAR));
  if (copy != nullptr && text != nullptr) std::memcpy(copy, text, length * sizeof(OLECHAR));
  return copy;
}

// Takes the place of `target` only when there is memory; `target` may be the source of `fresh`.
std::int32_t replace(BSTR* target, BSTR fresh) {
  if (fresh == nullptr) return 0;
  SysFreeString(*target);
  *target = fresh;
  return 1;
}

// Keeps as much of the text as fits the new length.
std::int32_t resize(BSTR* target, std::size_t length) {
  const std::size_t bytes = length * sizeof(OLECHAR);
  if (bytes > kMostBytes) return 0;
  void* const block = std::realloc(block_of(*target), bytes + kOverhead);
  if (block == nullptr) return 0;
  *target = adopt(block, bytes);
  (*target)[length] = u'\0';
  return 1;
}

}  // namespace

BSTR SysAllocString(const OLECHAR* text) {
  return text == nullptr ? nullptr : copy_of(text, length_of(text));
}

BSTR SysAllocStringLen(const OLECHAR* text, std::uint32_t length) { return copy_of(text, length); }

BSTR SysAllocStringByteLen(const char* bytes, std::uint32_t length) {
  const std::size_t padded = std::size_t{length} + length % 2;
  const BSTR text = allocate(padded);
  if (text == nullptr) return nullptr;
  if (padded != length) text[length / sizeof(char16_t)] = u'\0';
  if (bytes != nullptr) std::memcpy(text, bytes, length);
  return adopt(block_of(text), length);
}

std::int32_t SysReAllocString(BSTR* target, const OLECHAR* text) {
  if (target == nullptr) return 0;
  if (text != nullptr) return replace(target, SysAllocString(text));
  SysFreeString(*target);
  *target = nullptr;
  return 1;
}

std::int32_t SysReAllocStringLen(BSTR* target, const OLECHAR* text, std::uint32_t length) {
  if (target == nullptr) return 0;
  if (text == nullptr && *target != nullptr) return resize(target, length);
  return replace(target, copy_of(text, length));
}

void SysFreeString(BSTR text) {
  if (text == nullptr) return;
  live::add(&live::Counts::strings, -1);
  std::free(block_of(text));
}

std::uint32_t SysStringLen(BSTR text) { return SysStringByteLen(text) / 2; }

std::uint32_t SysStringByteLen(BSTR text) {
  if (text == nullptr) return 0;
  std::uint32_t length;
  std::memcpy(&length, block_of(text), sizeof length);
  return length;
}

}  // namespace kw
