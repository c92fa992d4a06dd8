#include "platform/linux/replacement.h"

#include <climits>
#include <optional>
#include <utility>

#include "kwutils/error.h"
#include "platform/linux/exclusive_file.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/system_calls.h"

namespace kw::platform {
namespace {

constexpr std::string_view kSuffix = ".kwtmp";

// What may be replaced: a file, or nothing yet.
std::optional<struct stat> status_of_target(const FileName& name) {
  struct stat status;
  const int result = restarted([&] { return system_calls().lstat(name.path.c_str(), &status); });
  if (result != 0 && errno == ENOENT) return std::nullopt;
  if (result != 0) throw_file_error(errno, name.given);
  if (S_ISDIR(status.st_mode)) throw_file_error(EISDIR, name.given);
  if (!S_ISREG(status.st_mode)) throw_file_error(EPERM, name.given);
  return status;
}

// Who may not read the old content may not read the new one while it is written.
mode_t mode_while_writing(const std::optional<struct stat>& replaced) {
  return replaced ? (replaced->st_mode & 0666) | 0600 : 0666;
}

// A name beside the target, made the same way by everybody, so that two writers meet there.
FileName name_beside(const FileName& target) {
  const std::string folder = folder_of(target.path);
  const std::size_t start = target.path.find_last_of('/') + 1;
  const std::string base = target.path.substr(start, NAME_MAX - kSuffix.size());
  std::string path = folder + "/" + base;
  path += kSuffix;
  return {path, path};
}

class SystemReplacement : public ReplacementFile {
 public:
  SystemReplacement(FileName temporary, FileName target)
      : target_(std::move(target)),
        old_(status_of_target(target_)),
        file_(std::move(temporary), target_, mode_while_writing(old_)) {}

  void write(std::string_view bytes) override { file_.write(bytes); }

  void replace() override {
    const std::optional<struct stat> replaced = status_of_target(target_);
    const struct stat* permissions = replaced ? &*replaced : nullptr;
    file_.finish(permissions);
    if (!file_.move_to(target_)) replace_from_other_volume(permissions);
    file_.release();
  }

 private:
  void replace_from_other_volume(const struct stat* permissions) {
    ExclusiveFile beside(name_beside(target_), target_, mode_while_writing(old_));
    file_.copy_to(beside);
    beside.finish(permissions);
    if (!beside.move_to(target_)) throw_file_error(EXDEV, target_.given);
    beside.release();
  }

  FileName target_;
  std::optional<struct stat> old_;  // the target when the writing began
  ExclusiveFile file_;
};

}  // namespace

std::unique_ptr<ReplacementFile> create_system_replacement(FileName temporary, FileName target) {
  target = follow_links(std::move(target));
  if (temporary.path == target.path) throw Error(ErrorNumber::invalid_argument, temporary.given);
  return std::make_unique<SystemReplacement>(std::move(temporary), std::move(target));
}

}  // namespace kw::platform
