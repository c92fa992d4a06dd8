#include "platform/files.h"

#include "kwutils/error.h"
#include "platform/system_files.h"
#include "platform/windows/file_errors.h"
#include "platform/windows/file_name.h"
#include "platform/windows/file_traits.h"
#include "platform/windows/replacement.h"
#include "platform/windows/stream_files.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

class SystemFiles : public FileService {
 public:
  std::unique_ptr<InputFile> open_input(std::u16string_view name) override {
    return open_system_input(native_name(name));
  }

  std::unique_ptr<OutputFile> create_output(std::u16string_view name) override {
    return create_system_output(native_name(name));
  }

  std::unique_ptr<ReplacementFile> create_replacement(std::u16string_view temporary,
                                                      std::u16string_view target) override {
    return create_system_replacement(native_name(temporary), native_name(target));
  }

  bool same_file(std::u16string_view first, std::u16string_view second) override {
    try {
      return is_one_file(native_name(first).path, native_name(second).path);
    } catch (const Error&) {
      return false;
    }
  }

  bool lies_idle(std::u16string_view name) override {
    if (!exists(name)) return false;
    const Handle file(CreateFileW(wide(native_name(name).path), GENERIC_READ,
                                  FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr));
    return file || GetLastError() != ERROR_SHARING_VIOLATION;
  }

  void check_attributes(std::u16string_view name) override {
    const FileName file = native_name(name);
    if (GetFileAttributesW(wide(file.path)) == INVALID_FILE_ATTRIBUTES)
      throw_lookup_error(GetLastError(), file);
  }

  void remove(std::u16string_view name) override {
    const FileName file = native_name(name);
    if (!DeleteFileW(wide(file.path))) throw_lookup_error(GetLastError(), file);
  }
};

}  // namespace

FileService& system_files() noexcept {
  static SystemFiles service;
  return service;
}

}  // namespace kw::platform
