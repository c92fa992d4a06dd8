// An object that answers by name. The library works on a program's forms and controls through such
// objects: it asks for a member's number by its name, then reads, writes or calls that member.
#pragma once

#include <windows.h>
// After the system's general header.
#include <oaidl.h>

#include <span>

struct Member {
  const OLECHAR* name;
  DISPID number;
};

class DispatchObject : public IDispatch {
 public:
  DispatchObject(const DispatchObject&) = delete;
  DispatchObject& operator=(const DispatchObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  // Names are told apart without regard to case. No member takes named arguments.
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* numbers) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID locale, WORD kind,
                                   DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception,
                                   UINT* bad_argument) override;

 protected:
  // `members` has to outlive the object.
  explicit DispatchObject(std::span<const Member> members) noexcept : members_(members) {}
  virtual ~DispatchObject() = default;

 private:
  // Each answers DISP_E_MEMBERNOTFOUND for a member of another kind.
  virtual HRESULT get(DISPID member, VARIANT& value);
  virtual HRESULT put(DISPID member, VARIANT& value);
  // The arguments stand in reverse order.
  virtual HRESULT call(DISPID member, std::span<VARIANT> arguments);

  std::span<const Member> members_;
  ULONG references_ = 1;
};

// The conversions that every member needs.
HRESULT put_number(VARIANT& value, LONG number);
HRESULT to_number(VARIANT& value, LONG& number);
HRESULT to_real(VARIANT& value, double& number);
