// A file that is written under one name, by one writer at a time, and then moved to another name.
//
// The file is made anew and shared with nobody, from its opening until it has its last name; both
// the moving and the removing go through the one handle. So whoever has the file open holds the
// name, and what another writer does under the name cannot reach it.
#pragma once

#include "platform/windows/file_traits.h"
#include "platform/write_buffer.h"

namespace kw::platform {

class ExclusiveFile {
 public:
  // Error 70 where another writer holds the name (the system's code is ERROR_SHARING_VIOLATION), or
  // where it belongs to a link or to something that is no file. What an earlier writer left behind
  // (it was killed) is removed.
  explicit ExclusiveFile(FileName name);
  // The file is removed unless it was moved.
  ~ExclusiveFile();
  ExclusiveFile(const ExclusiveFile&) = delete;
  ExclusiveFile& operator=(const ExclusiveFile&) = delete;

  void write(std::string_view bytes) { buffer_.write(bytes); }
  // Puts everything on the disk, with the traits of the file `replaced` where there is one.
  void finish(const FileTraits* replaced);
  // Appends the content, finished, to `other`.
  void copy_to(ExclusiveFile& other) const;
  // Moves the finished file over `target`. While another program keeps the target from being
  // replaced it is tried again, for two seconds at most. False: that name is on another volume,
  // nothing happened.
  bool move_to(const FileName& target);

 private:
  FileName name_;
  WriteBuffer buffer_;
  bool moved_ = false;
};

}  // namespace kw::platform
