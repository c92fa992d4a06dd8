// Holds the automation types to the layouts of the operating system's, field by field.
#include "kwutils/automation.h"

namespace kw {
namespace {

constexpr std::size_t kPointer = sizeof(void*);

static_assert(offsetof(GUID, Data2) == 4 && offsetof(GUID, Data3) == 6 &&
              offsetof(GUID, Data4) == 8);
static_assert(sizeof(SAFEARRAYBOUND) == 8 && offsetof(SAFEARRAYBOUND, lLbound) == 4);
static_assert(offsetof(SAFEARRAY, fFeatures) == 2 && offsetof(SAFEARRAY, cbElements) == 4 &&
              offsetof(SAFEARRAY, cLocks) == 8);
static_assert(offsetof(SAFEARRAY, pvData) == (kPointer == 8 ? 16 : 12));
static_assert(offsetof(SAFEARRAY, rgsabound) == offsetof(SAFEARRAY, pvData) + kPointer);
static_assert(offsetof(VARIANT, wReserved1) == 2 && offsetof(VARIANT, wReserved3) == 6);
static_assert(offsetof(DISPPARAMS, rgdispidNamedArgs) == kPointer &&
              offsetof(DISPPARAMS, cArgs) == 2 * kPointer &&
              offsetof(DISPPARAMS, cNamedArgs) == 2 * kPointer + 4);
static_assert(offsetof(EXCEPINFO, bstrSource) == kPointer &&
              offsetof(EXCEPINFO, dwHelpContext) == 4 * kPointer &&
              offsetof(EXCEPINFO, pvReserved) == 5 * kPointer &&
              offsetof(EXCEPINFO, scode) == 7 * kPointer);
static_assert(sizeof(EXCEPINFO) == 8 * kPointer);

}  // namespace
}  // namespace kw
