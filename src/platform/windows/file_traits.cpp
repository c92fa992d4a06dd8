#include "platform/windows/file_traits.h"

#include "platform/windows/file_errors.h"

namespace kw::platform {
namespace {

constexpr DWORD kSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

Handle opened(const std::u16string& path, DWORD access) {
  return Handle(CreateFileW(wide(path), access, kSharing, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

// Empty where the rights may not be read: the new file then has those of its folder.
std::vector<char> access_of(const Handle& file) {
  DWORD size = 0;
  GetKernelObjectSecurity(file.get(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<char> access(size);
  if (size == 0 ||
      !GetKernelObjectSecurity(file.get(), DACL_SECURITY_INFORMATION, access.data(), size, &size))
    return {};
  return access;
}

}  // namespace

Handle open_for_facts(const std::u16string& path) {
  Handle file = opened(path, FILE_READ_ATTRIBUTES | READ_CONTROL);
  return file ? std::move(file) : opened(path, FILE_READ_ATTRIBUTES);
}

FileTraits traits_of(const Handle& file) {
  FileTraits traits;
  FILE_BASIC_INFO basic = {};
  GetFileInformationByHandleEx(file.get(), FileBasicInfo, &basic, sizeof basic);
  traits.attributes = basic.FileAttributes;
  traits.created = basic.CreationTime;
  traits.access = access_of(file);
  return traits;
}

void set_traits(const Handle& file, const FileTraits& traits, const FileName& name) {
  if (!traits.access.empty() && !SetKernelObjectSecurity(file.get(), DACL_SECURITY_INFORMATION,
                                                         const_cast<char*>(traits.access.data())))
    throw_file_error(GetLastError(), name.given);
  FILE_BASIC_INFO basic = {};  // a time of 0 stays as it is
  basic.CreationTime = traits.created;
  basic.FileAttributes = traits.attributes;
  if (!SetFileInformationByHandle(file.get(), FileBasicInfo, &basic, sizeof basic))
    throw_file_error(GetLastError(), name.given);
}

bool is_one_file(const std::u16string& left, const std::u16string& right) {
  const Handle a = open_for_facts(left), b = open_for_facts(right);
  BY_HANDLE_FILE_INFORMATION of_a = {}, of_b = {};
  return a && b && GetFileInformationByHandle(a.get(), &of_a) &&
         GetFileInformationByHandle(b.get(), &of_b) &&
         of_a.dwVolumeSerialNumber == of_b.dwVolumeSerialNumber &&
         of_a.nFileIndexHigh == of_b.nFileIndexHigh && of_a.nFileIndexLow == of_b.nFileIndexLow;
}

bool is_link(const Handle& file) {
  FILE_ATTRIBUTE_TAG_INFO tag = {};
  return GetFileInformationByHandleEx(file.get(), FileAttributeTagInfo, &tag, sizeof tag) &&
         (tag.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
         IsReparseTagNameSurrogate(tag.ReparseTag);
}

}  // namespace kw::platform
