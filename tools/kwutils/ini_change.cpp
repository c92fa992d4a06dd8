#include "tool/ini_change.h"

#include <filesystem>
#include <random>

#include "base/unicode.h"
#include "kwutils/clsIni.h"
#include "platform/files.h"
#include "tool/failure.h"
#include "tool/notation.h"
#include "tool/read_file.h"

namespace kw::tool {
namespace {

namespace fs = std::filesystem;

// A file of that content in a folder of its own, both gone at the end.
class ScratchFile {
 public:
  explicit ScratchFile(const std::optional<std::string>& content) : folder_(make_folder()) {
    if (!content) return;
    const auto file = platform::files().create_output(name());
    file->write(*content);
    file->close();
  }
  ~ScratchFile() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  std::u16string name() const { return (folder_ / "scratch.ini").u16string(); }
  std::optional<std::string> content() const {
    if (!platform::files().exists(name())) return std::nullopt;
    return read_whole(*platform::files().open_input(name()));
  }

 private:
  static fs::path make_folder() {
    std::random_device random;
    for (;;) {
      const fs::path folder =
          fs::temp_directory_path() / ("kwutils-" + std::to_string(random()) + ".tmp");
      if (!fs::create_directory(folder)) continue;
      fs::permissions(folder, fs::perms::owner_all);
      return folder;
    }
  }

  fs::path folder_;
};

bool set_value(std::u16string_view file, const IniChange& change) {
  return clsIni().WriteIni(change.section, change.key, *change.value, file) != 0;
}

std::u16string read_value(std::u16string_view file, const IniChange& change) {
  return std::u16string(clsIni().GetIni(change.section, change.key, u"", file).view());
}

bool reads_back(const std::optional<std::string>& content, const IniChange& change) {
  return value_in(content_after(content, change), change) == *change.value;
}

// An empty value is read back wherever nothing stands: another one tells whether the names do.
bool names_read_back(const std::optional<std::string>& content, IniChange change) {
  change.value = u"x";
  return reads_back(content, change);
}

void check_page(std::u16string_view text) {
  const std::string fault = page_fault(text);
  if (!fault.empty()) fail_usage("cannot store " + in_quotes(to_utf8(text)) + ": " + fault);
}

}  // namespace

std::optional<std::string> content_after(const std::optional<std::string>& content,
                                         const IniChange& change) {
  const ScratchFile scratch(content);
  make_change(scratch.name(), change);
  return scratch.content();
}

std::u16string value_in(const std::optional<std::string>& content, const IniChange& change) {
  return read_value(ScratchFile(content).name(), change);
}

IniChange readable_change(const std::optional<std::string>& content, IniChange change) {
  for (const std::u16string* text : {&change.section, &change.key, &*change.value})
    check_page(*text);
  if (!names_read_back(content, change))
    fail_usage("an entry " + in_quotes(to_utf8(change.key)) + " of section " +
               in_quotes(to_utf8(change.section)) + " cannot be read back");
  if (reads_back(content, change)) return change;
  const std::u16string value = *change.value;
  change.value = u'"' + value + u'"';
  const std::u16string read = value_in(content_after(content, change), change);
  if (read != value)
    fail_usage("cannot store " + in_quotes(to_utf8(value)) + ": it would be read back as " +
               in_quotes(to_utf8(read)));
  return change;
}

bool make_change(std::u16string_view file, const IniChange& change) {
  if (change.value) return set_value(file, change);
  // One call removes one entry, and says nothing about it.
  for (std::string before; platform::files().exists(file);) {
    std::string content = read_whole(*platform::files().open_input(file));
    if (content == before) break;
    before = std::move(content);
    clsIni().RemoveIniEntry(change.section, change.key, file);
  }
  return true;
}

}  // namespace kw::tool
