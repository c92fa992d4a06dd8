#include <algorithm>
#include <cstring>
#include <memory>

#include "platform/files.h"
#include "platform/ini/entry_search.h"
#include "platform/ini/ini_file.h"
#include "platform/ini/utf16.h"

namespace kw::ini {
namespace {

// Small enough to stay in the processor's cache and to be reused by the allocator.
constexpr std::size_t kBlock = 64 * 1024;

// The part of a file that is being looked at. It grows only for a line that it cannot hold.
class Window {
 public:
  explicit Window(platform::InputFile& file)
      : file_(file), capacity_(first_capacity(file)), bytes_(new char[capacity_]) {}

  std::string_view text() const noexcept { return {bytes_.get(), size_}; }
  bool at_end() const noexcept { return at_end_; }

  // Forgets the first `used` bytes and reads on until there is no more room or no more file.
  void advance(std::size_t used) {
    std::memmove(bytes_.get(), bytes_.get() + used, size_ -= used);
    if (size_ == capacity_) grow();
    while (size_ < capacity_ && !at_end_) {
      const std::size_t count = file_.read(bytes_.get() + size_, capacity_ - size_);
      at_end_ = count == 0;
      size_ += count;
    }
  }

 private:
  // One byte more than the file holds, so that one reading shows its end.
  static std::size_t first_capacity(platform::InputFile& file) {
    const auto size = static_cast<std::size_t>(std::max<std::int64_t>(file.size_hint(), 0));
    return std::clamp<std::size_t>(size + 1, 512, kBlock);
  }

  void grow() {
    std::unique_ptr<char[]> larger(new char[2 * capacity_]);
    std::memcpy(larger.get(), bytes_.get(), size_);
    bytes_ = std::move(larger);
    capacity_ *= 2;
  }

  platform::InputFile& file_;
  std::size_t capacity_;
  std::size_t size_ = 0;
  bool at_end_ = false;
  std::unique_ptr<char[]> bytes_;
};

std::optional<std::string> read_bytes(Window& window, std::string_view section,
                                      std::string_view key) {
  EntrySearch<char> search(section, key, Sections::first);
  for (;;) {
    const std::size_t used = search.scan(window.text(), window.at_end());
    if (search.finished() || window.at_end()) break;
    window.advance(used);
  }
  const Entry<char>* entry = search.entry();
  if (entry == nullptr || !entry->has_value) return std::nullopt;
  return std::string(entry->value);
}

std::optional<std::string> read_utf16(Window& window, std::string_view section,
                                      std::string_view key) {
  while (!window.at_end()) window.advance(0);
  const std::u16string units = utf16_units(window.text());
  const std::u16string wide_section = widen(section);
  const std::u16string wide_key = widen(key);
  EntrySearch<char16_t> search(wide_section, wide_key, Sections::first);
  search.scan(units, true);
  const Entry<char16_t>* entry = search.entry();
  if (entry == nullptr || !entry->has_value) return std::nullopt;
  return narrow(entry->value);
}

}  // namespace

std::optional<std::string> read_entry(std::u16string_view file, std::string_view section,
                                      std::string_view key) {
  const auto input = platform::files().open_input(file);
  Window window(*input);
  window.advance(0);
  const auto read = is_utf16(window.text()) ? read_utf16 : read_bytes;
  return read(window, trim(section), trim(key));
}

}  // namespace kw::ini
