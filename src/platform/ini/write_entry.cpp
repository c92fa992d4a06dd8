#include <algorithm>
#include <chrono>
#include <memory>
#include <system_error>
#include <thread>

#include "kwutils/error.h"
#include "platform/files.h"
#include "platform/ini/edit.h"
#include "platform/ini/ini_file.h"
#include "platform/ini/utf16.h"

namespace kw::ini {
namespace {

constexpr std::u16string_view kTemporarySuffix = u".kwtmp";
constexpr auto kPatience = std::chrono::seconds(2);
constexpr auto kPause = std::chrono::milliseconds(1);

struct Change {
  std::string_view section;
  std::string_view key;
  std::optional<std::string_view> value;
};

template <class C>
std::optional<Edit<C>> edit_of(View<C> content, View<C> section, View<C> key,
                               std::optional<View<C>> value) {
  return value ? set_entry(content, section, key, *value) : remove_entry(content, section, key);
}

std::optional<Edit<char>> edit_of_utf16(std::string_view content, const Change& change) {
  const std::u16string units = utf16_units(content);
  const std::u16string section = widen(change.section);
  const std::u16string key = widen(change.key);
  const std::u16string value = widen(change.value.value_or(std::string_view()));
  const auto edit = edit_of<char16_t>(
      units, section, key, change.value ? std::optional<View<char16_t>>(value) : std::nullopt);
  if (!edit) return std::nullopt;
  return Edit<char>{utf16_offset(edit->begin), utf16_offset(edit->end), utf16_bytes(edit->text)};
}

std::optional<Edit<char>> edit_of(std::string_view content, const Change& change) {
  if (is_utf16(content)) return edit_of_utf16(content, change);
  return edit_of<char>(content, change.section, change.key, change.value);
}

// The whole file; "" for one that is missing.
std::string content_of(std::u16string_view name) try {
  const auto file = platform::files().open_input(name);
  std::string content;
  std::size_t size = 0;
  content.resize(static_cast<std::size_t>(std::max<std::int64_t>(file->size_hint(), 0)) + 1);
  while (const std::size_t count = file->read(content.data() + size, content.size() - size)) {
    size += count;
    if (size == content.size()) content.resize(2 * size);
  }
  content.resize(size);
  return content;
} catch (const Error& error) {
  if (error.number != ErrorNumber::file_not_found) throw;
  return {};
}

bool is_busy(const Error& error) {
  return error.number == ErrorNumber::permission_denied &&
         error.system_code == static_cast<int>(std::errc::operation_would_block);
}

// Waits for other writers: nobody can see from a result that a second attempt would have helped.
std::unique_ptr<platform::ReplacementFile> start_replacement(std::u16string_view name) {
  std::u16string temporary(name);
  temporary += kTemporarySuffix;
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  for (;;) try {
      return platform::files().create_replacement(temporary, name);
    } catch (const Error& error) {
      if (!is_busy(error) || std::chrono::steady_clock::now() > deadline) throw;
      std::this_thread::sleep_for(kPause);
    }
}

}  // namespace

void write_entry(std::u16string_view file, std::string_view section, std::string_view key,
                 std::optional<std::string_view> value) {
  const Change change{section, key, value};
  if (!edit_of(content_of(file), change)) return;
  const auto replacement = start_replacement(file);
  // Read again: between the first look and the hold on the file another writer may have come first.
  const std::string content = content_of(file);
  const auto edit = edit_of(content, change);
  if (!edit) return;
  const std::string_view old(content);
  replacement->write(old.substr(0, edit->begin));
  replacement->write(edit->text);
  replacement->write(old.substr(edit->end));
  replacement->replace();
}

}  // namespace kw::ini
