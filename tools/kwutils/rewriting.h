// The care that the tool takes when a command rewrites a file.
#pragma once

#include <memory>
#include <string>

#include "platform/files.h"
#include "tool/command.h"

namespace kw::tool {

struct RewriteOptions {
  bool dry_run = false;
  std::string backup;  // the suffix of a copy of the old file; "" for no copy
  double wait = 10;    // seconds for which another writer of the file is waited for
  bool force = false;  // may a file named just "tmp" be lost as the temporary file
};

// The options of commands that rewrite a file; for entity files, --force is one of them.
void add_rewrite_options(Arguments line, RewriteOptions& options);
void add_entity_rewrite_options(Arguments line, RewriteOptions& options);

// Answers with what differs between two contents of a file.
void show_diff(Session& session, const std::string& file, std::string_view before,
               std::string_view after);

// Stands in for the file service while a command rewrites one file:
//
// - where another process is writing the file, it waits, for at most the time allowed;
// - before the old content is replaced, a copy of it is made where one is wanted;
// - in a dry run nothing is written: the new content is kept, and read in place of the old one.
class Rewriting {
 public:
  Rewriting(Session& session, const RewriteOptions& options, const std::string& file);
  Rewriting(Rewriting&&) noexcept;
  ~Rewriting();

  // Why a rewrite that the library reports as failed was not completed; `unknown` where no file is
  // the reason.
  std::string failure(const std::string& unknown) const;

  // Makes the copy of the old content now, where one is wanted. For files that the library does
  // not replace through the file service on every system.
  void back_up(std::u16string_view file);

  // Ends a dry run: shows what would change in the file.
  void show_changes();

 private:
  class Files;

  Session& session_;
  std::string file_;
  std::unique_ptr<Files> files_;
  std::unique_ptr<platform::ScopedFileService> scope_;
};

// For an entity file. Fails where the library could not rewrite a file of that name, or where an
// existing file that bears the plain name "tmp" would be lost as its temporary file, unless that
// is forced.
Rewriting rewrite_entities(Session& session, const RewriteOptions& options,
                           const std::string& file);

}  // namespace kw::tool
