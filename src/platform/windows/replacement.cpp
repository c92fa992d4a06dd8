#include "platform/windows/replacement.h"

#include <optional>
#include <utility>

#include "kwutils/error.h"
#include "platform/windows/exclusive_file.h"
#include "platform/windows/file_errors.h"

namespace kw::platform {
namespace {

constexpr std::u16string_view kSuffix = u".kwtmp";
constexpr std::size_t kLongestName = 255;

// Empty where nothing of that name is there yet.
Handle look_at(const FileName& name) {
  Handle file = open_for_facts(name.path);
  if (!file && GetLastError() != ERROR_FILE_NOT_FOUND) throw_file_error(GetLastError(), name.given);
  return file;
}

// The name of the file that a link under this name points to; else the name.
FileName follow_links(FileName name) {
  const Handle named(CreateFileW(
      wide(name.path), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
      nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!named || !is_link(named)) return name;
  const Handle target = open_for_facts(name.path);
  if (!target) throw_file_error(GetLastError(), name.given);
  const auto ask = [&](WCHAR* buffer, DWORD size) {
    return GetFinalPathNameByHandleW(target.get(), buffer, size, FILE_NAME_NORMALIZED);
  };
  name.path = asked_text(ask);
  return name;
}

// What may be replaced: a file that is not protected, or nothing yet.
std::optional<FileTraits> traits_of_target(const FileName& name) {
  const Handle file = look_at(name);
  if (!file) return std::nullopt;
  const FileTraits traits = traits_of(file);
  constexpr DWORD kRefused = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
  if (GetFileType(file.get()) != FILE_TYPE_DISK || (traits.attributes & kRefused) != 0)
    throw_file_error(ERROR_ACCESS_DENIED, name.given);
  return traits;
}

bool is_same_path(const FileName& left, const FileName& right) {
  const std::u16string a = full_path(left.path), b = full_path(right.path);
  return CompareStringOrdinal(wide(a), static_cast<int>(a.size()), wide(b),
                              static_cast<int>(b.size()), TRUE) == CSTR_EQUAL;
}

// The target is looked at first: the other way round, another writer could put the temporary file
// in its place in between, and one file would be seen under both names.
bool is_same_file(const FileName& target, const FileName& temporary) {
  return is_same_path(target, temporary) || is_one_file(target.path, temporary.path);
}

// A name beside the target, made the same way by everybody, so that two writers meet there.
FileName name_beside(const FileName& target) {
  const std::u16string full = full_path(target.path);
  const std::size_t start = full.find_last_of(u"\\/") + 1;
  const std::u16string base = full.substr(start, kLongestName - kSuffix.size());
  return native_name(full.substr(0, start) + base + std::u16string(kSuffix));
}

// Who waits for another writer asks again and again. They are answered before the target is opened:
// a file that is open somewhere cannot be replaced, and the one who holds the name would wait too.
void check_not_held(const FileName& temporary) {
  constexpr DWORD kSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const Handle file(CreateFileW(wide(temporary.path), GENERIC_READ, kSharing, nullptr,
                                OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
  if (!file && GetLastError() == ERROR_SHARING_VIOLATION)
    throw_file_error(ERROR_SHARING_VIOLATION, temporary.given);
}

class SystemReplacement : public ReplacementFile {
 public:
  SystemReplacement(FileName temporary, FileName target)
      : target_(checked(std::move(target), temporary)), file_(std::move(temporary)) {}

  void write(std::string_view bytes) override { file_.write(bytes); }

  void replace() override {
    const std::optional<FileTraits> replaced = traits_of_target(target_);
    const FileTraits* traits = replaced ? &*replaced : nullptr;
    file_.finish(traits);
    if (!file_.move_to(target_)) replace_from_other_volume(traits);
  }

 private:
  static FileName checked(FileName target, const FileName& temporary) {
    traits_of_target(target);
    if (is_same_file(target, temporary))
      throw Error(ErrorNumber::invalid_argument, temporary.given);
    return target;
  }

  void replace_from_other_volume(const FileTraits* traits) {
    ExclusiveFile beside(name_beside(target_));
    file_.copy_to(beside);
    beside.finish(traits);
    if (!beside.move_to(target_)) throw_file_error(ERROR_NOT_SAME_DEVICE, target_.given);
  }

  FileName target_;
  ExclusiveFile file_;
};

}  // namespace

std::unique_ptr<ReplacementFile> create_system_replacement(FileName temporary, FileName target) {
  check_not_held(temporary);
  return std::make_unique<SystemReplacement>(std::move(temporary), follow_links(std::move(target)));
}

}  // namespace kw::platform
