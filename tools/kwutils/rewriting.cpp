#include "tool/rewriting.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <random>
#include <system_error>
#include <thread>
#include <utility>

#include "base/code_page.h"
#include "base/numeric_text.h"
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

// Whether somebody's own file has the name. One that another writer is about to hold lies idle for
// a moment.
bool is_taken(std::u16string_view name) {
  constexpr int kLooks = 20;
  for (int look = 0; look < kLooks; ++look) {
    if (!platform::files().lies_idle(name)) return false;
    pause();
  }
  return true;
}

// What the library would refuse without a word, or do in another place.
void check_name(const std::string& file, const RewriteOptions& options) {
  const std::u16string name = from_utf8(file);
  if (parse::trim(std::u16string_view(name)) != name) refuse(file, "its name has blanks around it");
  if (name.size() < 5)
    refuse(file, "a name of fewer than five characters gives no name for the temporary file");
  if (store::temporary_name(name) == u"tmp" && !options.force && is_taken(u"tmp"))
    refuse(
        file,
        "its temporary file would be 'tmp' in the current directory, and there is a file of that "
        "name; --force lets it be lost");
}

// Runs a step of a rewrite of `file`, and keeps why it fails.
template <class Function>
auto remembering(std::string& why, const std::string& file, Function&& function) {
  try {
    return function();
  } catch (const Error& error) {
    const bool may_be_made = error.number == ErrorNumber::file_not_found;
    if (!may_be_made) why = reason(error, file);
    throw;
  }
}

// Passes everything on.
class WatchedReplacement : public platform::ReplacementFile {
 public:
  WatchedReplacement(std::unique_ptr<platform::ReplacementFile> content, std::string& why,
                     const std::string& file)
      : content_(std::move(content)), why_(why), file_(file) {}
  void write(std::string_view bytes) override {
    remembering(why_, file_, [&] { content_->write(bytes); });
  }
  void replace() override {
    remembering(why_, file_, [&] { content_->replace(); });
  }

 private:
  std::unique_ptr<platform::ReplacementFile> content_;
  std::string& why_;
  const std::string& file_;
};

// Gives a copy the permissions of its original before it holds anything.
void copy_permissions(std::u16string_view from, std::u16string_view to) {
  std::error_code failure;
  const auto status = std::filesystem::status(std::filesystem::path(from), failure);
  if (!failure && std::filesystem::exists(status))
    std::filesystem::permissions(std::filesystem::path(to), status.permissions(), failure);
}

// Gives what is wrong with a number of seconds.
std::string check_seconds(const std::string& text) {
  constexpr double kLongest = 1e9;
  const auto seconds = parse_number(from_utf8(text));
  return seconds && *seconds >= 0 && *seconds <= kLongest
             ? ""
             : in_quotes(text) + " is no number of seconds";
}

std::string seconds_text(double seconds) {
  char text[32];
  std::snprintf(text, sizeof text, "%g s", seconds);
  return text;
}

}  // namespace

class Rewriting::Files : public platform::FileService {
 public:
  Files(platform::FileService& system, const RewriteOptions& options, std::string file)
      : system_(system), options_(options), file_(std::move(file)) {}

  std::unique_ptr<platform::InputFile> open_input(std::u16string_view name) override {
    if (kept_.exists(name)) return kept_.open_input(name);
    return remembering(why, file_, [&] { return system_.open_input(name); });
  }
  std::unique_ptr<platform::OutputFile> create_output(std::u16string_view name) override {
    return system_.create_output(name);
  }
  std::unique_ptr<platform::ReplacementFile> create_replacement(
      std::u16string_view temporary, std::u16string_view target) override {
    return remembering(why, file_, [&] { return begin_replacement(temporary, target); });
  }
  void check_attributes(std::u16string_view name) override {
    if (!kept_.exists(name)) system_.check_attributes(name);
  }
  bool same_file(std::u16string_view first, std::u16string_view second) override {
    return system_.same_file(first, second);
  }
  bool lies_idle(std::u16string_view name) override { return system_.lies_idle(name); }
  void remove(std::u16string_view name) override { system_.remove(name); }

  std::string old_content(std::u16string_view name) {
    return system_.exists(name) ? read_whole(*system_.open_input(name)) : "";
  }
  // What a dry run would have written; null where it would have written nothing.
  const std::string* kept(std::u16string_view name) {
    return kept_.exists(name) ? &kept_.content(name) : nullptr;
  }

  void back_up(std::u16string_view target);

  std::string why;

 private:
  std::unique_ptr<platform::ReplacementFile> begin_replacement(std::u16string_view temporary,
                                                               std::u16string_view target);
  std::unique_ptr<platform::ReplacementFile> wait_for_turn(std::u16string_view temporary,
                                                           std::u16string_view target);
  [[noreturn]] void give_up(std::string reason) {
    why = std::move(reason);
    refuse(file_, why);
  }

  platform::FileService& system_;
  const RewriteOptions& options_;
  std::string file_;
  bool replaced_ = false;
  platform::MemoryFiles kept_;  // new content, in a dry run
};

std::unique_ptr<platform::ReplacementFile> Rewriting::Files::begin_replacement(
    std::u16string_view temporary, std::u16string_view target) {
  if (options_.dry_run) return kept_.create_replacement(temporary, target);
  auto file = wait_for_turn(temporary, target);
  // Nobody else writes the file from here on. A command may replace it several times: the copy is
  // that of what was there before.
  if (!replaced_) back_up(target);
  replaced_ = true;
  return std::make_unique<WatchedReplacement>(std::move(file), why, file_);
}

std::unique_ptr<platform::ReplacementFile> Rewriting::Files::wait_for_turn(
    std::u16string_view temporary, std::u16string_view target) {
  const auto deadline = Clock::now() + std::chrono::duration<double>(options_.wait);
  for (;;) {
    try {
      return system_.create_replacement(temporary, target);
    } catch (const Error& error) {
      if (!means_busy(error)) throw;
    }
    if (Clock::now() >= deadline)
      give_up("another process was still writing it after " + seconds_text(options_.wait));
    pause();
  }
}

void Rewriting::Files::back_up(std::u16string_view target) {
  if (options_.backup.empty() || !system_.exists(target)) return;
  const std::u16string name = std::u16string(target) + from_utf8(options_.backup);
  if (system_.same_file(target, name))
    give_up("its backup " + in_quotes(to_utf8(name)) + " is the file itself");
  const auto from = system_.open_input(target);
  const auto to = system_.create_output(name);
  copy_permissions(target, name);
  std::string block(256 * 1024, '\0');
  while (const std::size_t size = from->read(block.data(), block.size()))
    to->write(std::string_view(block).substr(0, size));
  to->close();
}

Rewriting::Rewriting(Session& session, const RewriteOptions& options, const std::string& file)
    : session_(session), file_(file) {
  files_ = std::make_unique<Files>(platform::files(), options, file);
  scope_ = std::make_unique<platform::ScopedFileService>(*files_);
}

Rewriting::Rewriting(Rewriting&&) noexcept = default;

Rewriting::~Rewriting() = default;

std::string Rewriting::failure(const std::string& unknown) const {
  return files_->why.empty() ? unknown : files_->why;
}

void Rewriting::back_up(std::u16string_view file) { files_->back_up(file); }

void Rewriting::show_changes() {
  const std::u16string name = from_utf8(file_);
  const std::string* new_content = files_->kept(name);
  if (new_content == nullptr) return;
  show_diff(session_, file_, files_->old_content(name), *new_content);
}

Rewriting rewrite_entities(Session& session, const RewriteOptions& options,
                           const std::string& file) {
  check_name(file, options);
  return Rewriting(session, options, file);
}

void show_diff(Session& session, const std::string& file, std::string_view before,
               std::string_view after) {
  const std::string diff = unified_diff(before, after, file, file + " (after)");
  if (session.json) {
    JsonWriter json(session.out);
    json.begin_object();
    json.key("diff").text(widen(diff));
    json.end();
  } else if (platform::is_terminal(session.out_file)) {
    session.out << widen(diff);
  } else {
    session.out << diff;
  }
}

void add_rewrite_options(Arguments line, RewriteOptions& options) {
  line.add_flag("--dry-run", options.dry_run, "Show what would change, as a diff; change nothing");
  line.add_option("--backup", options.backup, "Keep the old file under its name and this suffix")
      .type_name("[=SUFFIX]");
  line.add_option("--wait", options.wait,
                  "How long to wait for another writer of the file; else 10")
      .type_name("SECONDS")
      .check(&check_seconds);
}

void add_entity_rewrite_options(Arguments line, RewriteOptions& options) {
  add_rewrite_options(line, options);
  line.add_flag("--force", options.force, "Let a file named 'tmp' be lost as the temporary file");
}

}  // namespace kw::tool
