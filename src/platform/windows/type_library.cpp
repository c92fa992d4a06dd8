#include "platform/windows/type_library.h"

#include <cstdio>
#include <cstring>

#include "base/unicode.h"
#include "platform/guid_text.h"
#include "platform/windows/system.h"
// After the system's general header.
#include <oleauto.h>

// Missing in the headers, not in the library.
extern "C" HRESULT __stdcall RegisterTypeLibForUser(ITypeLib* library, OLECHAR* file,
                                                    OLECHAR* help_folder);
extern "C" HRESULT __stdcall UnRegisterTypeLibForUser(REFGUID id, WORD major, WORD minor,
                                                      LCID locale, SYSKIND system);

namespace kw::platform {
namespace {

constexpr SYSKIND kSystem = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;

const ::GUID& as_system(const GUID& guid) { return reinterpret_cast<const ::GUID&>(guid); }

// A type library while it is looked at.
class Loaded {
 public:
  explicit Loaded(const std::u16string& file) noexcept
      : status_(LoadTypeLibEx(wide(file), REGKIND_NONE, &library_)) {}
  Loaded(const Loaded&) = delete;
  Loaded& operator=(const Loaded&) = delete;
  ~Loaded() {
    if (library_ != nullptr) library_->Release();
  }
  HRESULT status() const noexcept { return status_; }
  ITypeLib* operator->() const noexcept { return library_; }
  ITypeLib* get() const noexcept { return library_; }

 private:
  ITypeLib* library_ = nullptr;
  HRESULT status_;
};

}  // namespace

std::optional<TypeLibraryId> type_library_of(const std::u16string& file) noexcept {
  const Loaded library(file);
  TLIBATTR* attributes = nullptr;
  if (library.status() != S_OK || library->GetLibAttr(&attributes) != S_OK) return std::nullopt;
  TypeLibraryId result{};
  std::memcpy(&result.id, &attributes->guid, sizeof result.id);
  result.major = attributes->wMajorVerNum;
  result.minor = attributes->wMinorVerNum;
  result.locale = attributes->lcid;
  library->ReleaseTLibAttr(attributes);
  return result;
}

std::u16string type_library_file_key(const TypeLibraryId& library) {
  char numbers[40] = {};
  std::snprintf(numbers, sizeof numbers, "\\%x.%x\\%x\\win%d", unsigned{library.major},
                unsigned{library.minor}, static_cast<unsigned>(library.locale),
                sizeof(void*) == 8 ? 64 : 32);
  return from_utf8("TypeLib\\" + guid_text(library.id) + numbers);
}

HRESULT register_type_library(const std::u16string& file, bool for_user_only) noexcept {
  const Loaded library(file);
  if (library.status() != S_OK) return library.status();
  auto* path = const_cast<::OLECHAR*>(wide(file));
  return for_user_only ? RegisterTypeLibForUser(library.get(), path, nullptr)
                       : RegisterTypeLib(library.get(), path, nullptr);
}

HRESULT unregister_type_library(const TypeLibraryId& library, bool for_user_only) noexcept {
  const auto remove = for_user_only ? &UnRegisterTypeLibForUser : &UnRegisterTypeLib;
  return remove(as_system(library.id), library.major, library.minor, library.locale, kSystem);
}

HRESULT interface_information(const std::u16string& file, const GUID& interface_id,
                              ITypeInfo** info) noexcept {
  const Loaded library(file);
  if (library.status() != S_OK) return library.status();
  return library->GetTypeInfoOfGuid(as_system(interface_id), reinterpret_cast<::ITypeInfo**>(info));
}

}  // namespace kw::platform
