#include "failure_of_status.h"

#include "types/status.h"

namespace kw::cases {

std::int64_t error_number(HRESULT failure) {
  if ((static_cast<std::uint32_t>(failure) & 0xFFFF0000u) == 0x800A0000u) return failure & 0xFFFF;
  switch (failure) {
    case status::kOutOfMemory:
      return 7;
    case status::kOverflow:
      return 6;
    case status::kTypeMismatch:
      return 13;
    case status::kMemberNotFound:
    case status::kUnknownName:
      return 438;
    case status::kParameterNotOptional:
      return 449;
    case status::kBadParameterCount:
      return 450;
    case status::kNotImplemented:
      return 445;
    default:
      return failure;
  }
}

std::u16string taken(BSTR text) {
  std::u16string result(text != nullptr ? text : u"", SysStringLen(text));
  SysFreeString(text);
  return result;
}

}  // namespace kw::cases
