// A file that is written under one name, by one writer at a time, and then moved to another name.
//
// Who holds the lock of the file that bears the name holds the name. A writer therefore makes the
// file or opens the one that is there, locks it without waiting, and looks whether the name still
// leads to the file that it locked; if not, the name has passed on in between and it begins again.
// What an earlier writer left behind (it was killed) is removed under its lock and made anew, so
// that neither old permissions nor further links to the old file matter.
#pragma once

#include "platform/write_buffer.h"

namespace kw::platform {

class ExclusiveFile {
 public:
  // `mode` as for open(). Error 5, and nothing is touched, where `name` and `target`, whose place
  // the file is to take, are names of one file. Error 70 where another writer holds the name (the
  // system's code is EWOULDBLOCK), or where it belongs to a symbolic link or to something that is
  // no file.
  ExclusiveFile(FileName name, const FileName& target, mode_t mode);
  // The file is removed unless it was moved.
  ~ExclusiveFile();
  ExclusiveFile(const ExclusiveFile&) = delete;
  ExclusiveFile& operator=(const ExclusiveFile&) = delete;

  void write(std::string_view bytes) { buffer_.write(bytes); }
  // Puts everything on the disk, with the permissions of the file `replaced` where there is one.
  // Nothing can be written afterwards; the name stays held.
  void finish(const struct stat* replaced);
  // Appends the content, finished, to `other`.
  void copy_to(ExclusiveFile& other) const;
  // Moves the finished file over `target`. False: that name is on another volume, nothing happened.
  bool move_to(const FileName& target);
  // Removes the file where it was not moved, and lets the name go; reports what its destructor
  // would not.
  void release();

 private:
  bool holds_name() const;

  FileName name_;
  Descriptor lock_;
  WriteBuffer buffer_;
  bool moved_ = false;
};

}  // namespace kw::platform
