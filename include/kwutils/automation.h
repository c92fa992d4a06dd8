// The automation ABI: the value types, interfaces, statuses and functions that automation clients
// and servers share, declared once for every system. Layouts, slot orders and signatures are those
// of the operating system, so that a client compiled against either set of headers works with a
// server compiled against the other. Texts are 16-bit code units everywhere.
//
// These are the raw types; String, Array<T>, Variant and Object own and check them.
//
// This header never includes the operating system's. A source that includes both must not see the
// system's own declarations of the functions at the end of this header.
#pragma once

#include <cstdint>

#include "kwutils/abi.h"
#include "kwutils/automation_interfaces.h"
#include "kwutils/automation_status.h"
#include "kwutils/automation_values.h"

namespace kw {

// Functions of the operating system; on Linux, of libkwautomation.so.
extern "C" {

// Texts. Null comes back when there is no memory. A null source makes an uninitialised text of the
// length asked for; SysReAllocStringLen then keeps what fits of the old text, SysAllocString and
// SysReAllocString give null. The ReAlloc functions answer 0, the old text kept, without memory.
KW_AUTOMATION_API BSTR KW_STDCALL SysAllocString(const OLECHAR* text);
KW_AUTOMATION_API BSTR KW_STDCALL SysAllocStringLen(const OLECHAR* text, std::uint32_t length);
KW_AUTOMATION_API BSTR KW_STDCALL SysAllocStringByteLen(const char* bytes, std::uint32_t length);
KW_AUTOMATION_API std::int32_t KW_STDCALL SysReAllocString(BSTR* target, const OLECHAR* text);
KW_AUTOMATION_API std::int32_t KW_STDCALL SysReAllocStringLen(BSTR* target, const OLECHAR* text,
                                                              std::uint32_t length);
KW_AUTOMATION_API void KW_STDCALL SysFreeString(BSTR text);
KW_AUTOMATION_API std::uint32_t KW_STDCALL SysStringLen(BSTR text);
KW_AUTOMATION_API std::uint32_t KW_STDCALL SysStringByteLen(BSTR text);

// Arrays. Dimensions count from 1, the leftmost first; an index list has one index per dimension,
// in the same order. Redim changes the last dimension alone.
KW_AUTOMATION_API SAFEARRAY* KW_STDCALL SafeArrayCreate(VARTYPE kind, std::uint32_t dimensions,
                                                        SAFEARRAYBOUND* bounds);
KW_AUTOMATION_API SAFEARRAY* KW_STDCALL SafeArrayCreateVector(VARTYPE kind, std::int32_t lower,
                                                              std::uint32_t count);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayAllocDescriptorEx(VARTYPE kind,
                                                                std::uint32_t dimensions,
                                                                SAFEARRAY** array);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayAllocData(SAFEARRAY* array);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayDestroy(SAFEARRAY* array);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayDestroyData(SAFEARRAY* array);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayRedim(SAFEARRAY* array, SAFEARRAYBOUND* last);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayCopy(SAFEARRAY* array, SAFEARRAY** copy);
KW_AUTOMATION_API std::uint32_t KW_STDCALL SafeArrayGetDim(SAFEARRAY* array);
KW_AUTOMATION_API std::uint32_t KW_STDCALL SafeArrayGetElemsize(SAFEARRAY* array);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayGetVartype(SAFEARRAY* array, VARTYPE* kind);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayGetLBound(SAFEARRAY* array, std::uint32_t dimension,
                                                        std::int32_t* bound);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayGetUBound(SAFEARRAY* array, std::uint32_t dimension,
                                                        std::int32_t* bound);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayLock(SAFEARRAY* array);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayUnlock(SAFEARRAY* array);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayAccessData(SAFEARRAY* array, void** data);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayUnaccessData(SAFEARRAY* array);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayPtrOfIndex(SAFEARRAY* array, std::int32_t* indices,
                                                         void** element);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayGetElement(SAFEARRAY* array, std::int32_t* indices,
                                                         void* value);
KW_AUTOMATION_API HRESULT KW_STDCALL SafeArrayPutElement(SAFEARRAY* array, std::int32_t* indices,
                                                         void* value);

// Variants.
KW_AUTOMATION_API void KW_STDCALL VariantInit(VARIANT* value);
KW_AUTOMATION_API HRESULT KW_STDCALL VariantClear(VARIANT* value);
KW_AUTOMATION_API HRESULT KW_STDCALL VariantCopy(VARIANT* target, const VARIANT* source);
KW_AUTOMATION_API HRESULT KW_STDCALL VariantCopyInd(VARIANT* target, const VARIANT* source);
KW_AUTOMATION_API HRESULT KW_STDCALL VariantChangeType(VARIANT* target, const VARIANT* source,
                                                       std::uint16_t flags, VARTYPE kind);
KW_AUTOMATION_API HRESULT KW_STDCALL VariantChangeTypeEx(VARIANT* target, const VARIANT* source,
                                                         LCID locale, std::uint16_t flags,
                                                         VARTYPE kind);

// The error object of the calling thread. GetErrorInfo takes it away and answers kFalse when there
// is none.
KW_AUTOMATION_API HRESULT KW_STDCALL SetErrorInfo(std::uint32_t reserved, IErrorInfo* info);
KW_AUTOMATION_API HRESULT KW_STDCALL GetErrorInfo(std::uint32_t reserved, IErrorInfo** info);
KW_AUTOMATION_API HRESULT KW_STDCALL CreateErrorInfo(ICreateErrorInfo** info);

}  // extern "C"

}  // namespace kw
