// Files in memory, for tests and fuzzers that need very many of them. There are no folders and no
// drives: every text without NUL is the name of one file. Replacements are exclusive and
// all-or-nothing as on a disk. Not for several threads at once.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/files.h"

namespace kw::platform {

class MemoryFiles : public FileService {
 public:
  // Puts a file there, whole; an old one of that name is replaced (its readers keep the old
  // content).
  void put(std::u16string_view name, std::string content);
  // The file's content; error 53 where there is none.
  const std::string& content(std::u16string_view name) const;
  std::size_t count() const noexcept { return files_.size(); }
  void clear() noexcept { files_.clear(); }

  std::unique_ptr<InputFile> open_input(std::u16string_view name) override;
  std::unique_ptr<OutputFile> create_output(std::u16string_view name) override;
  std::unique_ptr<ReplacementFile> create_replacement(std::u16string_view temporary,
                                                      std::u16string_view target) override;
  void check_attributes(std::u16string_view name) override;
  void remove(std::u16string_view name) override;

 private:
  struct File {
    std::string content;
    bool held = false;  // by a replacement
  };
  class Replacement;

  const std::shared_ptr<File>& find(std::u16string_view name) const;

  // A file outlives its name while somebody has it open.
  std::unordered_map<std::u16string, std::shared_ptr<File>> files_;
};

}  // namespace kw::platform
