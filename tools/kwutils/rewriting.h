// The care that the tool takes when a command rewrites a file.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "kwutils/error.h"
#include "platform/files.h"
#include "tool/command.h"

namespace kw::tool {

struct RewriteOptions {
  bool dry_run = false;
  std::string backup;  // the suffix of a copy of the old file; "" for no copy
  double wait = 10;    // seconds for which another writer of the file is waited for
  bool force = false;  // may a file named just "tmp" be lost as the temporary file
};

void add_rewrite_options(CLI::App& line, RewriteOptions& options);

// Stands in for the file service while a command rewrites one file:
//
// - where another process is writing the file, it waits, for at most the time allowed;
// - before the old content is replaced, a copy of it is made where one is wanted;
// - in a dry run nothing is written: the new content is kept, and read in place of the old one;
// - an existing file that bears the plain name "tmp" is not taken for a temporary one, unless
//   forced.
class Rewriting {
 public:
  // Fails where the library could not rewrite a file of that name, or the plain name "tmp" is
  // taken.
  Rewriting(Session& session, const RewriteOptions& options, const std::string& file);
  ~Rewriting();

  // What kept the last rewrite from being completed, where the library keeps it to itself.
  const std::optional<Error>& last_error() const noexcept;

  // Ends a dry run: shows what would change in the file.
  void show_changes();

 private:
  class Files;

  Session& session_;
  std::string file_;
  std::unique_ptr<Files> files_;
  std::unique_ptr<platform::ScopedFileService> scope_;
};

}  // namespace kw::tool
