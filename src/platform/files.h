// The file service: whatever the library does with files goes through here.
//
// A file name is the caller's text. On Linux it may be native or Windows text: a name that exists
// as given is used as given; otherwise a leading "C:" is dropped and every "\" becomes "/". Every
// other drive letter names a drive without files (error 76).
//
// Failures are kw::Error with the name in the description and the operating system's own code:
//   52 a name that is empty, holds NUL or is too long    53 no such file
//   57 any other input or output failure                  61 no room on the disk
//   70 forbidden, a directory, or in use                  76 no such folder or drive
// The system's code tells a file in use from a forbidden one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "kwutils/error.h"

namespace kw::platform {

// A file open for reading. Other programs may read, write, rename and delete it meanwhile.
class InputFile {
 public:
  virtual ~InputFile() = default;
  // Reads at most `size` bytes (at least 1) and returns how many; 0 at the end of the file only.
  // It may return fewer than asked for before the end.
  virtual std::size_t read(char* buffer, std::size_t size) = 0;
  // The next read starts `position` bytes after the file's first byte; a position beyond the end
  // is allowed. Error 63 for a negative one, or where the file cannot be positioned (a pipe).
  virtual void seek(std::int64_t position) = 0;
  // The file's size at this moment; 0 for what has no size (a pipe). Good for choosing a buffer:
  // the end of the file is where read() says so.
  virtual std::int64_t size_hint() = 0;
};

// A file open for writing, buffered. Once a call has failed, every later call fails in the same
// way.
class OutputFile {
 public:
  // Without close() what is buffered is written as well as it can be, and nothing is reported.
  virtual ~OutputFile() = default;
  // Takes all of `bytes` or throws. A failure may come from bytes of an earlier call.
  virtual void write(std::string_view bytes) = 0;
  // Writes what is buffered and closes. Nothing may be written afterwards; a second close() does
  // nothing.
  virtual void close() = 0;
};

// The complete new content of a file, built in a temporary file and put in the place of the old
// content in one step. Until replace() has succeeded, the old file is as it was; at no instant is
// there neither the whole old nor the whole new content under its name.
class ReplacementFile {
 public:
  // Unless it has taken the target's place, the temporary file is removed.
  virtual ~ReplacementFile() = default;
  // As OutputFile::write. Once a call has failed, every later call, replace() included, fails in
  // the same way: an incomplete file never takes the target's place.
  virtual void write(std::string_view bytes) = 0;
  // Flushes the content to the disk, gives it the permissions (and, where allowed, the owner) of
  // the file that it replaces, and puts it under the target's name. Where the target is a symbolic
  // link, the file that it points to is replaced. Where the temporary file lies on another volume,
  // the content is copied to a file beside the target first. To be called once.
  virtual void replace() = 0;
};

class FileService {
 public:
  virtual ~FileService() = default;
  virtual std::unique_ptr<InputFile> open_input(std::u16string_view name) = 0;
  // Makes the file, or empties it. A plain file, without the promises of a replacement.
  virtual std::unique_ptr<OutputFile> create_output(std::u16string_view name) = 0;
  // Starts the new content of `target`, which need not exist, in the file `temporary`. That file is
  // held exclusively until it is replaced or dropped: whoever holds it first, a second request gets
  // error 70 at once, and neither harms the other. A file of that name that nobody holds is lost.
  // Error 5 when both names mean the same file; error 70 when the target is a directory or another
  // thing that is no file, or when the temporary name is a symbolic link. In all of these nothing
  // is touched.
  virtual std::unique_ptr<ReplacementFile> create_replacement(std::u16string_view temporary,
                                                              std::u16string_view target) = 0;
  // Whether anything, a directory too, has this name. An impossible name and a missing drive or
  // folder are no error: nothing is there. Whatever else keeps the question from being answered
  // throws, so that a file that cannot be seen is never taken for a missing one.
  bool exists(std::u16string_view name);
  // Whether both names mean one file or directory that is there. An impossible name and a missing
  // drive or folder are no error: nothing is there. Whatever else keeps the question from being
  // answered throws, so that nobody empties a file that may be the other one.
  virtual bool same_file(std::u16string_view first, std::u16string_view second) {
    return first == second && exists(first);
  }
  // Whether a file of that name is there that no replacement holds at this moment: what a killed
  // writer left behind, or somebody's own. On Windows one that any program holds for writing counts
  // as held.
  virtual bool lies_idle(std::u16string_view name) { return exists(name); }
  // Throws what reading the attributes of that file or directory would raise.
  virtual void check_attributes(std::u16string_view name) = 0;
  // Deletes a file.
  virtual void remove(std::u16string_view name) = 0;
};

// Whether a service says by that error that nothing has the name: the file, its folder or its drive
// is missing, or the name is impossible.
bool says_missing(const Error& error) noexcept;

// The service in use: the operating system's, unless a ScopedFileService stands in for it.
FileService& files() noexcept;

// Lets `service` stand in for the system's files, for every thread, during its own life. For tests.
class ScopedFileService {
 public:
  explicit ScopedFileService(FileService& service) noexcept;
  ~ScopedFileService();
  ScopedFileService(const ScopedFileService&) = delete;
  ScopedFileService& operator=(const ScopedFileService&) = delete;

 private:
  FileService* previous_;
};

}  // namespace kw::platform
