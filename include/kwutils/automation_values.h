// The raw automation values: texts, arrays, variants and the parameters of late-bound calls, in the
// operating system's own layouts.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kwutils/abi.h"
#include "kwutils/automation_status.h"

namespace kw {

using LCID = std::uint32_t;
using DISPID = std::int32_t;
using VARTYPE = std::uint16_t;
using VARIANT_BOOL = std::int16_t;
using OLECHAR = char16_t;

// A counted text: its length in bytes lies in the 4 bytes before the first character, a terminator
// after the last. Null is the empty text.
using BSTR = char16_t*;

inline constexpr VARIANT_BOOL kVariantTrue = -1;
inline constexpr VARIANT_BOOL kVariantFalse = 0;

enum : VARTYPE {
  kVtEmpty = 0,
  kVtNull = 1,
  kVtI2 = 2,
  kVtI4 = 3,
  kVtR4 = 4,
  kVtR8 = 5,
  kVtCy = 6,
  kVtDate = 7,
  kVtBstr = 8,
  kVtDispatch = 9,
  kVtError = 10,
  kVtBool = 11,
  kVtVariant = 12,
  kVtUnknown = 13,
  kVtDecimal = 14,
  kVtI1 = 16,
  kVtUi1 = 17,
  kVtUi2 = 18,
  kVtUi4 = 19,
  kVtI8 = 20,
  kVtUi8 = 21,
  kVtInt = 22,
  kVtUint = 23,
  kVtRecord = 36,
  kVtTypeMask = 0x0FFF,
  kVtArray = 0x2000,
  kVtByRef = 0x4000,
};

struct IUnknown;
struct IDispatch;
struct IErrorInfo;
struct ITypeInfo;
struct IRecordInfo;
struct VARIANT;

struct SAFEARRAYBOUND {
  std::uint32_t cElements;
  std::int32_t lLbound;
};

// fFeatures of a SAFEARRAY.
enum : std::uint16_t {
  kFeatureAuto = 0x0001,
  kFeatureStatic = 0x0002,
  kFeatureEmbedded = 0x0004,
  kFeatureFixedSize = 0x0010,
  kFeatureRecord = 0x0020,
  kFeatureHaveIid = 0x0040,
  kFeatureHaveVartype = 0x0080,
  kFeatureBstr = 0x0100,
  kFeatureUnknown = 0x0200,
  kFeatureDispatch = 0x0400,
  kFeatureVariant = 0x0800,
};

// rgsabound holds cDims bounds, the last dimension's first. With kFeatureHaveVartype the element's
// VARTYPE lies in the 4 bytes before the descriptor.
struct SAFEARRAY {
  std::uint16_t cDims;
  std::uint16_t fFeatures;
  std::uint32_t cbElements;
  std::uint32_t cLocks;
  void* pvData;
  SAFEARRAYBOUND rgsabound[1];
};
static_assert(sizeof(SAFEARRAY) == (sizeof(void*) == 8 ? 32 : 24));

struct RecordValue {
  void* pvRecord;
  IRecordInfo* pRecInfo;
};

// What vt says lies in the union; with kVtByRef a pointer to it does. A decimal fills the whole
// structure, vt being its reserved word.
struct VARIANT {
  VARTYPE vt;
  std::uint16_t wReserved1;
  std::uint16_t wReserved2;
  std::uint16_t wReserved3;
  union {
    std::int64_t llVal;
    std::int32_t lVal;
    std::uint8_t bVal;
    std::int16_t iVal;
    float fltVal;
    double dblVal;
    VARIANT_BOOL boolVal;
    std::int32_t scode;
    std::int64_t cyVal;
    double date;
    BSTR bstrVal;
    IUnknown* punkVal;
    IDispatch* pdispVal;
    SAFEARRAY* parray;
    std::int8_t cVal;
    std::uint16_t uiVal;
    std::uint32_t ulVal;
    std::uint64_t ullVal;
    std::int32_t intVal;
    std::uint32_t uintVal;

    std::uint8_t* pbVal;
    std::int16_t* piVal;
    std::int32_t* plVal;
    std::int64_t* pllVal;
    float* pfltVal;
    double* pdblVal;
    VARIANT_BOOL* pboolVal;
    std::int32_t* pscode;
    std::int64_t* pcyVal;
    double* pdate;
    BSTR* pbstrVal;
    IUnknown** ppunkVal;
    IDispatch** ppdispVal;
    SAFEARRAY** pparray;
    VARIANT* pvarVal;
    void* byref;
    std::int8_t* pcVal;
    std::uint16_t* puiVal;
    std::uint32_t* pulVal;
    std::uint64_t* pullVal;
    std::int32_t* pintVal;
    std::uint32_t* puintVal;

    RecordValue brecVal;
  };
};
static_assert(sizeof(VARIANT) == (sizeof(void*) == 8 ? 24 : 16));
static_assert(offsetof(VARIANT, llVal) == 8);

// wFlags of VariantChangeType.
enum : std::uint16_t {
  kChangeNoValueProperty = 0x0001,  // never reads an object's default property
  kChangeAlphaBool = 0x0002,        // a boolean reads "True" or "False", not "-1" or "0"
  kChangeNoUserOverride = 0x0004,
  kChangeLocalBool = 0x0010,
};

// wFlags of IDispatch::Invoke.
enum : std::uint16_t {
  kDispatchMethod = 1,
  kDispatchPropertyGet = 2,
  kDispatchPropertyPut = 4,
  kDispatchPropertyPutRef = 8,
};

inline constexpr DISPID kDispidValue = 0;
inline constexpr DISPID kDispidUnknown = -1;
inline constexpr DISPID kDispidPropertyPut = -3;
inline constexpr DISPID kDispidNewEnum = -4;

// The arguments of a late-bound call, the last one first; the named ones lead.
struct DISPPARAMS {
  VARIANT* rgvarg;
  DISPID* rgdispidNamedArgs;
  std::uint32_t cArgs;
  std::uint32_t cNamedArgs;
};

// The error of a late-bound call that answered kException. The caller frees the three texts.
struct EXCEPINFO {
  std::uint16_t wCode;
  std::uint16_t wReserved;
  BSTR bstrSource;
  BSTR bstrDescription;
  BSTR bstrHelpFile;
  std::uint32_t dwHelpContext;
  void* pvReserved;
  HRESULT(KW_STDCALL* pfnDeferredFillIn)(EXCEPINFO*);
  HRESULT scode;
};

}  // namespace kw
