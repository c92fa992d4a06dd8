#include "tool/rewriting.h"

#include <chrono>
#include <random>
#include <system_error>
#include <thread>
#include <utility>

#include "base/code_page.h"
#include "base/unicode.h"
#include "parse/text_view.h"
#include "platform/memory_files.h"
#include "platform/terminal.h"
#include "store/temporary_name.h"
#include "tool/diff.h"
#include "tool/failure.h"
#include "tool/json_writer.h"
#include "tool/read_file.h"

namespace kw::tool {
namespace {

using Clock = std::chrono::steady_clock;

// Another writer has the temporary file. The second number is the Windows status of a file in use,
// which no Linux call answers when a file is opened.
bool means_busy(const Error& error) {
  constexpr std::int32_t kSharingViolation = 32;
  return error.number == ErrorNumber::permission_denied &&
         (error.system_code == static_cast<std::int32_t>(std::errc::operation_would_block) ||
          error.system_code == kSharingViolation);
}

// Not always the same time, so that waiting processes do not keep meeting.
void pause() {
  static std::minstd_rand random{std::random_device()()};
  std::this_thread::sleep_for(std::chrono::microseconds(500 + random() % 3500));
}

[[noreturn]] void refuse(const std::string& file, const std::string& why) {
  fail("cannot rewrite " + in_quotes(file) + ": " + why);
}

// What the library would refuse without a word, or do in another place.
void check_name(const std::string& file, const RewriteOptions& options) {
  const std::u16string name = from_utf8(file);
  if (parse::trim(std::u16string_view(name)) != name) refuse(file, "its name has blanks around it");
  if (name.size() < 5)
    refuse(file, "a name of fewer than five characters gives no name for the temporary file");
  if (store::temporary_name(name) == u"tmp" && !options.force && platform::files().exists(u"tmp"))
    refuse(
        file,
        "its temporary file would be 'tmp' in the current directory, and there is a file of that "
        "name; --force lets it be lost");
}

// Runs a step of a rewrite.
template <class Function>
auto remembering(std::optional<Error>& last_error, Function&& function) {
  try {
    return function();
  } catch (const Error& error) {
    last_error = error;
    throw;
  }
}

// Passes everything on.
class WatchedReplacement : public platform::ReplacementFile {
 public:
  WatchedReplacement(std::unique_ptr<platform::ReplacementFile> file,
                     std::optional<Error>& last_error)
      : file_(std::move(file)), last_error_(last_error) {}
  void write(std::string_view bytes) override {
    remembering(last_error_, [&] { file_->write(bytes); });
  }
  void replace() override {
    remembering(last_error_, [&] { file_->replace(); });
  }

 private:
  std::unique_ptr<platform::ReplacementFile> file_;
  std::optional<Error>& last_error_;
};

}  // namespace

class Rewriting::Files : public platform::FileService {
 public:
  Files(platform::FileService& system, const RewriteOptions& options)
      : system_(system), options_(options) {}

  std::unique_ptr<platform::InputFile> open_input(std::u16string_view name) override {
    return kept_.exists(name) ? kept_.open_input(name) : system_.open_input(name);
  }
  std::unique_ptr<platform::OutputFile> create_output(std::u16string_view name) override {
    return system_.create_output(name);
  }
  std::unique_ptr<platform::ReplacementFile> create_replacement(
      std::u16string_view temporary, std::u16string_view target) override {
    return remembering(last_error, [&] { return begin_replacement(temporary, target); });
  }
  void check_attributes(std::u16string_view name) override {
    if (!kept_.exists(name)) system_.check_attributes(name);
  }
  void remove(std::u16string_view name) override { system_.remove(name); }

  std::string old_content(std::u16string_view name) {
    return system_.exists(name) ? read_whole(*system_.open_input(name)) : "";
  }
  // What a dry run would have written; null where it would have written nothing.
  const std::string* kept(std::u16string_view name) {
    return kept_.exists(name) ? &kept_.content(name) : nullptr;
  }

  std::optional<Error> last_error;

 private:
  std::unique_ptr<platform::ReplacementFile> begin_replacement(std::u16string_view temporary,
                                                               std::u16string_view target);
  std::unique_ptr<platform::ReplacementFile> wait_for_turn(std::u16string_view temporary,
                                                           std::u16string_view target);
  void back_up(std::u16string_view target);

  platform::FileService& system_;
  const RewriteOptions& options_;
  platform::MemoryFiles kept_;  // new content, in a dry run
};

std::unique_ptr<platform::ReplacementFile> Rewriting::Files::begin_replacement(
    std::u16string_view temporary, std::u16string_view target) {
  if (options_.dry_run) return kept_.create_replacement(temporary, target);
  auto file = wait_for_turn(temporary, target);
  // Nobody else writes the file from here on.
  if (!options_.backup.empty() && system_.exists(target)) back_up(target);
  return std::make_unique<WatchedReplacement>(std::move(file), last_error);
}

std::unique_ptr<platform::ReplacementFile> Rewriting::Files::wait_for_turn(
    std::u16string_view temporary, std::u16string_view target) {
  const auto deadline = Clock::now() + std::chrono::duration<double>(options_.wait);
  for (;;) {
    try {
      return system_.create_replacement(temporary, target);
    } catch (const Error& error) {
      if (!means_busy(error) || Clock::now() >= deadline) throw;
    }
    pause();
  }
}

void Rewriting::Files::back_up(std::u16string_view target) {
  const auto from = system_.open_input(target);
  const auto to = system_.create_output(std::u16string(target) + from_utf8(options_.backup));
  std::string block(256 * 1024, '\0');
  while (const std::size_t size = from->read(block.data(), block.size()))
    to->write(std::string_view(block).substr(0, size));
  to->close();
}

Rewriting::Rewriting(Session& session, const RewriteOptions& options, const std::string& file)
    : session_(session), file_(file) {
  check_name(file, options);
  files_ = std::make_unique<Files>(platform::files(), options);
  scope_ = std::make_unique<platform::ScopedFileService>(*files_);
}

Rewriting::~Rewriting() = default;

const std::optional<Error>& Rewriting::last_error() const noexcept { return files_->last_error; }

void Rewriting::show_changes() {
  const std::u16string name = from_utf8(file_);
  const std::string* new_content = files_->kept(name);
  if (new_content == nullptr) return;
  const std::string diff =
      unified_diff(files_->old_content(name), *new_content, file_, file_ + " (after)");
  if (session_.json) {
    JsonWriter json(session_.out);
    json.begin_object();
    json.key("diff").text(widen(diff));
    json.end();
  } else if (platform::is_terminal(session_.out_file)) {
    session_.out << widen(diff);
  } else {
    session_.out << diff;
  }
}

void add_rewrite_options(CLI::App& line, RewriteOptions& options) {
  line.add_flag("--dry-run", options.dry_run, "Show what would change, as a diff; change nothing");
  line.add_option("--backup", options.backup, "Keep the old file under its name and this suffix")
      ->type_name("[=SUFFIX]");
  line.add_option("--wait", options.wait, "How long to wait for another writer of the file")
      ->type_name("SECONDS")
      ->check(CLI::NonNegativeNumber);
  line.add_flag("--force", options.force, "Let a file named 'tmp' be lost as the temporary file");
}

}  // namespace kw::tool
