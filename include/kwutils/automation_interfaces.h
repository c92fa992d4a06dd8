// The automation interfaces and their identifiers. The order of the functions is the order of the
// slots.
#pragma once

#include <cstdint>

#include "kwutils/abi.h"
#include "kwutils/automation_values.h"

namespace kw {

struct GUID {
  std::uint32_t Data1;
  std::uint16_t Data2;
  std::uint16_t Data3;
  std::uint8_t Data4[8];

  friend constexpr bool operator==(const GUID&, const GUID&) = default;
};
static_assert(sizeof(GUID) == 16);

namespace detail {

// The interfaces of the automation system itself: {xxxxxxxx-0000-0000-C000-000000000046}.
constexpr GUID system_iid(std::uint32_t first) {
  return {first, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
}

}  // namespace detail

inline constexpr GUID kNullGuid{};
inline constexpr GUID kIidUnknown = detail::system_iid(0x00000000);
inline constexpr GUID kIidClassFactory = detail::system_iid(0x00000001);
inline constexpr GUID kIidDispatch = detail::system_iid(0x00020400);
inline constexpr GUID kIidEnumVariant = detail::system_iid(0x00020404);
inline constexpr GUID kIidErrorInfo = {
    0x1CF2B120, 0x547D, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};
inline constexpr GUID kIidCreateErrorInfo = {
    0x22F03340, 0x547D, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};
inline constexpr GUID kIidSupportErrorInfo = {
    0xDF0B3D60, 0x548F, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};

struct IUnknown {
  virtual HRESULT KW_STDCALL QueryInterface(const GUID& iid, void** object) = 0;
  virtual std::uint32_t KW_STDCALL AddRef() = 0;
  virtual std::uint32_t KW_STDCALL Release() = 0;

 protected:
  ~IUnknown() = default;  // objects end by Release alone
};

struct IDispatch : IUnknown {
  virtual HRESULT KW_STDCALL GetTypeInfoCount(std::uint32_t* count) = 0;
  virtual HRESULT KW_STDCALL GetTypeInfo(std::uint32_t index, LCID locale, ITypeInfo** info) = 0;
  virtual HRESULT KW_STDCALL GetIDsOfNames(const GUID& reserved, OLECHAR** names,
                                           std::uint32_t count, LCID locale, DISPID* ids) = 0;
  virtual HRESULT KW_STDCALL Invoke(DISPID member, const GUID& reserved, LCID locale,
                                    std::uint16_t flags, DISPPARAMS* parameters, VARIANT* result,
                                    EXCEPINFO* exception, std::uint32_t* bad_argument) = 0;

 protected:
  ~IDispatch() = default;
};

struct IClassFactory : IUnknown {
  virtual HRESULT KW_STDCALL CreateInstance(IUnknown* outer, const GUID& iid, void** object) = 0;
  virtual HRESULT KW_STDCALL LockServer(std::int32_t lock) = 0;

 protected:
  ~IClassFactory() = default;
};

struct IEnumVARIANT : IUnknown {
  virtual HRESULT KW_STDCALL Next(std::uint32_t count, VARIANT* values, std::uint32_t* fetched) = 0;
  virtual HRESULT KW_STDCALL Skip(std::uint32_t count) = 0;
  virtual HRESULT KW_STDCALL Reset() = 0;
  virtual HRESULT KW_STDCALL Clone(IEnumVARIANT** copy) = 0;

 protected:
  ~IEnumVARIANT() = default;
};

struct ISupportErrorInfo : IUnknown {
  virtual HRESULT KW_STDCALL InterfaceSupportsErrorInfo(const GUID& iid) = 0;

 protected:
  ~ISupportErrorInfo() = default;
};

struct IErrorInfo : IUnknown {
  virtual HRESULT KW_STDCALL GetGUID(GUID* iid) = 0;
  virtual HRESULT KW_STDCALL GetSource(BSTR* source) = 0;
  virtual HRESULT KW_STDCALL GetDescription(BSTR* description) = 0;
  virtual HRESULT KW_STDCALL GetHelpFile(BSTR* file) = 0;
  virtual HRESULT KW_STDCALL GetHelpContext(std::uint32_t* context) = 0;

 protected:
  ~IErrorInfo() = default;
};

struct ICreateErrorInfo : IUnknown {
  virtual HRESULT KW_STDCALL SetGUID(const GUID& iid) = 0;
  virtual HRESULT KW_STDCALL SetSource(OLECHAR* source) = 0;
  virtual HRESULT KW_STDCALL SetDescription(OLECHAR* description) = 0;
  virtual HRESULT KW_STDCALL SetHelpFile(OLECHAR* file) = 0;
  virtual HRESULT KW_STDCALL SetHelpContext(std::uint32_t context) = 0;

 protected:
  ~ICreateErrorInfo() = default;
};

}  // namespace kw
