#include "platform/file_numbers.h"

#include <limits>
#include <string>
#include <utility>

#include "kwutils/error.h"

namespace kw::platform {
namespace {

[[noreturn]] void throw_bad_number(std::int16_t number) {
  throw Error(ErrorNumber::bad_file_name_or_number, std::to_string(number));
}

}  // namespace

NumberedFile::NumberedFile(std::u16string_view name, FileMode mode)
    : input_(mode == FileMode::input ? files().open_input(name) : nullptr),
      output_(mode == FileMode::output ? files().create_output(name) : nullptr) {}

InputFile& NumberedFile::input() {
  if (!input_) throw Error(ErrorNumber::bad_file_mode);
  return *input_;
}

OutputFile& NumberedFile::output() {
  if (!output_) throw Error(ErrorNumber::bad_file_mode);
  return *output_;
}

void FileNumbers::open(std::int16_t number, std::u16string_view name, FileMode mode) {
  const std::lock_guard lock(mutex_);
  if (number < 1 || files_.contains(number)) throw_bad_number(number);
  files_.emplace(number, std::make_shared<NumberedFile>(name, mode));
}

void FileNumbers::close(std::int16_t number) {
  std::shared_ptr<NumberedFile> file;
  {
    const std::lock_guard lock(mutex_);
    const auto entry = files_.find(number);
    if (entry == files_.end()) throw_bad_number(number);
    file = std::move(entry->second);
    files_.erase(entry);
  }
  if (file->mode() == FileMode::output) file->output().close();
}

std::shared_ptr<NumberedFile> FileNumbers::find(std::int16_t number) const {
  const std::lock_guard lock(mutex_);
  const auto entry = files_.find(number);
  if (entry == files_.end()) throw_bad_number(number);
  return entry->second;
}

std::int16_t FileNumbers::next_free() const {
  const std::lock_guard lock(mutex_);
  std::int16_t number = 1;
  for (const auto& entry : files_) {
    if (entry.first != number) return number;
    if (number == std::numeric_limits<std::int16_t>::max()) throw_bad_number(number);
    ++number;
  }
  return number;
}

FileNumbers& file_numbers() noexcept {
  static FileNumbers table;
  return table;
}

}  // namespace kw::platform
