#include "platform/files.h"

#include <atomic>

#include "platform/system_files.h"

namespace kw::platform {
namespace {

std::atomic<FileService*> stand_in{nullptr};

}  // namespace

bool says_missing(const Error& error) noexcept {
  return error.number == ErrorNumber::file_not_found ||
         error.number == ErrorNumber::path_not_found ||
         error.number == ErrorNumber::bad_file_name_or_number;
}

bool FileService::exists(std::u16string_view name) {
  try {
    check_attributes(name);
    return true;
  } catch (const Error& error) {
    if (!says_missing(error)) throw;
    return false;
  }
}

FileService& files() noexcept {
  FileService* service = stand_in.load(std::memory_order_acquire);
  return service ? *service : system_files();
}

ScopedFileService::ScopedFileService(FileService& service) noexcept
    : previous_(stand_in.exchange(&service, std::memory_order_acq_rel)) {}

ScopedFileService::~ScopedFileService() { stand_in.store(previous_, std::memory_order_release); }

}  // namespace kw::platform
