#include "frame/late_bound.h"

#include "frame/failure.h"

namespace kw::frame {
namespace {

DISPID parameter_id(const Method& method, std::u16string_view name) {
  for (std::size_t i = 0; i < method.parameters.size(); ++i)
    if (same_name(name, method.parameters[i].name)) return static_cast<DISPID>(i);
  return kDispidUnknown;
}

// Hosts ask for a method without arguments as for a property.
bool may_call(const Method& method, std::uint16_t flags) {
  if ((flags & kDispatchMethod) != 0) return true;
  return (flags & kDispatchPropertyGet) != 0 && (method.parameters.empty() || method.id == 0);
}

HRESULT call(ObjectBase& self, const Method& method, const DISPPARAMS& sent, VARIANT* result,
             EXCEPINFO* exception, std::uint32_t* bad_argument) noexcept {
  Arguments arguments;
  const HRESULT sorted = arguments.sort(method, sent, bad_argument);
  if (sorted != status::kOk) return sorted;
  const CallGuard guard(self);
  try {
    return method.invoke(self, arguments, result);
  } catch (const BadArgument& bad) {
    if (bad_argument != nullptr) *bad_argument = arguments.sent_index(bad.position);
    return bad.status;
  } catch (...) {
    return raise(current_failure(self.table), exception);
  }
}

}  // namespace

HRESULT KW_STDCALL get_ids_of_names(ObjectBase* self, const GUID* reserved, OLECHAR** names,
                                    std::uint32_t count, LCID, DISPID* ids) noexcept {
  if (!self->on_own_thread()) return status::kWrongThread;
  if (reserved != nullptr && *reserved != kNullGuid) return status::kUnknownInterface;
  if (count == 0) return status::kOk;
  if (names == nullptr || ids == nullptr) return status::kPointer;
  const Method* method =
      names[0] != nullptr ? self->table.method(std::u16string_view(names[0])) : nullptr;
  ids[0] = method != nullptr ? method->id : kDispidUnknown;
  HRESULT answer = method != nullptr ? status::kOk : status::kUnknownName;
  for (std::uint32_t i = 1; i < count; ++i) {
    const bool known = method != nullptr && names[i] != nullptr;
    ids[i] = known ? parameter_id(*method, names[i]) : kDispidUnknown;
    if (ids[i] == kDispidUnknown) answer = status::kUnknownName;
  }
  return answer;
}

HRESULT KW_STDCALL invoke(ObjectBase* self, DISPID member, const GUID* reserved, LCID,
                          std::uint16_t flags, DISPPARAMS* parameters, VARIANT* result,
                          EXCEPINFO* exception, std::uint32_t* bad_argument) noexcept {
  if (!self->on_own_thread()) return status::kWrongThread;
  if (reserved != nullptr && *reserved != kNullGuid) return status::kUnknownInterface;
  const Method* method = self->table.method(member);
  if (method == nullptr || !may_call(*method, flags)) return status::kMemberNotFound;
  if (parameters == nullptr) return status::kInvalidArgument;
  if (result != nullptr) result->vt = kVtEmpty;
  return call(*self, *method, *parameters, result, exception, bad_argument);
}

}  // namespace kw::frame
