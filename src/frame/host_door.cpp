#include "frame/host_door.h"

#include "frame/guarded.h"
#include "kwutils/string.h"
#include "platform/file_numbers.h"

namespace kw::frame {
namespace {

std::u16string_view view_of(BSTR text) { return {text, text != nullptr ? SysStringLen(text) : 0}; }

class Door final : public IHostDoor {
 public:
  HRESULT KW_STDCALL QueryInterface(const GUID& iid, void** object) noexcept override {
    if (object == nullptr) return status::kPointer;
    const bool known = iid == kIidUnknown || iid == kIidHostDoor;
    *object = known ? this : nullptr;
    return known ? status::kOk : status::kNoInterface;
  }
  std::uint32_t KW_STDCALL AddRef() noexcept override { return 2; }
  std::uint32_t KW_STDCALL Release() noexcept override { return 1; }

  HRESULT KW_STDCALL SetFunctions(const HostFunctions* functions) noexcept override {
    set_host(functions != nullptr ? *functions : HostFunctions());
    return status::kOk;
  }
  HRESULT KW_STDCALL OpenFile(std::int16_t number, BSTR name,
                              NumberedFileMode mode) noexcept override {
    const auto as =
        mode == NumberedFileMode::output ? platform::FileMode::output : platform::FileMode::input;
    return guarded([&] { platform::file_numbers().open(number, view_of(name), as); });
  }
  HRESULT KW_STDCALL CloseFile(std::int16_t number) noexcept override {
    return guarded([&] { platform::file_numbers().close(number); });
  }
};

}  // namespace

IHostDoor& host_door() noexcept {
  static Door door;
  return door;
}

}  // namespace kw::frame
