#include "desktop/dispatch_object.h"

#include <oleauto.h>

HRESULT DispatchObject::QueryInterface(REFIID wanted, void** object) {
  const bool known = wanted == IID_IUnknown || wanted == IID_IDispatch;
  *object = known ? this : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG DispatchObject::AddRef() { return ++references_; }

ULONG DispatchObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT DispatchObject::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

HRESULT DispatchObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  *info = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT DispatchObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) {
  for (UINT i = 0; i < count; ++i) numbers[i] = DISPID_UNKNOWN;
  for (const Member& member : members_)
    if (count > 0 && lstrcmpiW(member.name, names[0]) == 0) numbers[0] = member.number;
  return count == 1 && numbers[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT DispatchObject::Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* arguments,
                               VARIANT* result, EXCEPINFO*, UINT*) {
  if ((kind & DISPATCH_PROPERTYPUT) != 0)
    return arguments->cArgs == 1 ? put(member, arguments->rgvarg[0]) : DISP_E_BADPARAMCOUNT;
  if (arguments->cArgs > 0) return call(member, {arguments->rgvarg, arguments->cArgs});
  VARIANT unwanted{};
  const HRESULT answer = get(member, result != nullptr ? *result : unwanted);
  VariantClear(&unwanted);
  return answer;
}

HRESULT DispatchObject::get(DISPID, VARIANT&) { return DISP_E_MEMBERNOTFOUND; }

HRESULT DispatchObject::put(DISPID, VARIANT&) { return DISP_E_MEMBERNOTFOUND; }

HRESULT DispatchObject::call(DISPID, std::span<VARIANT>) { return DISP_E_MEMBERNOTFOUND; }

HRESULT put_number(VARIANT& value, LONG number) {
  V_VT(&value) = VT_I4;
  V_I4(&value) = number;
  return S_OK;
}

HRESULT to_number(VARIANT& value, LONG& number) {
  VARIANT converted{};
  const HRESULT answer = VariantChangeType(&converted, &value, 0, VT_I4);
  if (answer == S_OK) number = V_I4(&converted);
  return answer;
}

HRESULT to_real(VARIANT& value, double& number) {
  VARIANT converted{};
  const HRESULT answer = VariantChangeType(&converted, &value, 0, VT_R8);
  if (answer == S_OK) number = V_R8(&converted);
  return answer;
}
