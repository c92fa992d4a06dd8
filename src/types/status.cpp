#include "types/status.h"

#include "kwutils/error.h"

namespace kw {
namespace {

ErrorNumber number_of(HRESULT failure) {
  if ((static_cast<std::uint32_t>(failure) & 0xFFFF0000u) == 0x800A0000u)
    return ErrorNumber{failure & 0xFFFF};
  switch (failure) {
    case status::kOutOfMemory:
      return ErrorNumber::out_of_memory;
    case status::kOverflow:
      return ErrorNumber::overflow;
    case status::kBadIndex:
      return ErrorNumber::subscript_out_of_range;
    case status::kArrayIsLocked:
      return ErrorNumber::array_locked;
    case status::kMemberNotFound:
    case status::kUnknownName:
      return ErrorNumber::no_such_member;
    case status::kTypeMismatch:
    case status::kBadVariableType:
      return ErrorNumber::type_mismatch;
    default:
      return ErrorNumber::invalid_argument;
  }
}

}  // namespace

void throw_status(HRESULT failure) { throw Error(number_of(failure)); }

}  // namespace kw
