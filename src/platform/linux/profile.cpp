#include "platform/profile.h"

#include <unistd.h>

#include "base/code_page.h"
#include "kwutils/error.h"
#include "platform/files.h"
#include "platform/host_functions.h"
#include "platform/ini/ini_file.h"
#include "platform/ini/value.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/name_in_any_case.h"

namespace kw::platform::profile {
namespace {

constexpr std::u16string_view kCurrentFolder = u".\\";

// Integers are read through a buffer of this size.
constexpr std::size_t kNumberCapacity = 30;

std::string_view until_nul(std::string_view text) { return text.substr(0, text.find('\0')); }

// The name as the file service takes it.
std::u16string completed(std::string_view file) {
  file = until_nul(file);
  if (file.find_first_of("*?") != file.npos) throw Error(ErrorNumber::bad_file_name_or_number);
  const std::u16string name = widen(file);
  if (name.find_first_of(u"\\/:") == name.npos) return windows_directory() + u"\\" + name;
  const bool native = name.starts_with(kCurrentFolder) && name[kCurrentFolder.size()] == u'/';
  return native ? name.substr(kCurrentFolder.size()) : name;
}

std::u16string located(std::string_view file) { return name_in_any_case(completed(file)); }

// Replacing a file asks for a writable folder only; who protects a file means its content.
void check_writable(std::u16string_view name) {
  const FileName file = native_name(name);
  if (access(file.path.c_str(), W_OK) != 0 && errno != ENOENT) throw_file_error(errno, file.given);
}

std::optional<std::string> value_of(std::string_view section, std::string_view key,
                                    std::string_view file) try {
  return ini::read_entry(located(file), until_nul(section), until_nul(key));
} catch (const Error&) {
  return std::nullopt;  // a file that cannot be read has no values
}

}  // namespace

std::string get_string(std::string_view section, std::string_view key, std::string_view fallback,
                       std::size_t capacity, std::string_view file) {
  const auto value = value_of(section, key, file);
  return std::string(value ? ini::handed_out(*value, capacity)
                           : ini::handed_out_default(until_nul(fallback), capacity));
}

std::int32_t get_int(std::string_view section, std::string_view key, std::int32_t fallback,
                     std::string_view file) {
  const std::string value = get_string(section, key, {}, kNumberCapacity, file);
  return value.empty() ? fallback : ini::leading_integer(value);
}

bool write_string(std::string_view section, std::string_view key,
                  std::optional<std::string_view> value, std::string_view file) try {
  if (value) value = until_nul(*value);
  const std::u16string name = located(file);
  check_writable(name);
  ini::write_entry(name, until_nul(section), until_nul(key), value);
  return true;
} catch (const Error&) {
  return false;
}

std::u16string stored_name(std::u16string_view file) { return name_in_any_case(file); }

std::u16string windows_directory() {
  return host_text(&HostFunctions::windows_directory).value_or(u"/etc");
}

}  // namespace kw::platform::profile
