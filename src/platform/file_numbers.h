// The table of open file numbers: files that a host opens for the library to read records from.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string_view>

#include "platform/files.h"

namespace kw::platform {

enum class FileMode { input, output };

// One open file. It outlives its number while somebody works with it.
class NumberedFile {
 public:
  NumberedFile(std::u16string_view name, FileMode mode);

  // Error 54 where the file is open in the other mode.
  InputFile& input();
  OutputFile& output();
  FileMode mode() const noexcept { return input_ ? FileMode::input : FileMode::output; }

  // Whatever must be kept from one call to the next by the one who reads the file: a reader reads
  // ahead, so the records that follow are no longer in `input()` but in the reader. Empty at first;
  // dropped with the file. One user at a time.
  std::shared_ptr<void> reading_state;

 private:
  std::unique_ptr<InputFile> input_;
  std::unique_ptr<OutputFile> output_;
};

// Every call may come from any thread; a file itself belongs to the thread that works with it.
class FileNumbers {
 public:
  // Error 52 for a number below 1 or one that is taken, or the error that opening the file gives.
  void open(std::int16_t number, std::u16string_view name, FileMode mode);
  // Reports what could not be written. The number is free afterwards also when that fails. Error 52
  // when no file is open under it.
  void close(std::int16_t number);
  // The file under that number; error 52 when there is none.
  std::shared_ptr<NumberedFile> find(std::int16_t number) const;
  // The lowest number that is free; error 52 when none is.
  std::int16_t next_free() const;

 private:
  mutable std::mutex mutex_;
  std::map<std::int16_t, std::shared_ptr<NumberedFile>> files_;
};

// The table of this process.
FileNumbers& file_numbers() noexcept;

}  // namespace kw::platform
