#include "late_call.h"

#include <algorithm>

#include "base/unicode.h"

namespace kw::cases {
namespace {

Failure failure_of(HRESULT answer, const EXCEPINFO& exception) {
  if (answer != status::kException) return {error_number(answer), {}, {}};
  SysFreeString(exception.bstrHelpFile);
  return {error_number(exception.scode), taken(exception.bstrSource),
          taken(exception.bstrDescription)};
}

}  // namespace

Called call_late(const Object& object, const std::string& method, std::vector<VARIANT> sent) {
  std::reverse(sent.begin(), sent.end());
  DISPPARAMS parameters = {sent.data(), nullptr, static_cast<std::uint32_t>(sent.size()), 0};
  std::u16string name = from_utf8(method);
  char16_t* names[] = {name.data()};
  DISPID id = 0;
  EXCEPINFO exception = {};
  std::uint32_t bad = 0;
  Called called;
  IDispatch* const target = object.pointer();
  HRESULT answer = target->GetIDsOfNames(kNullGuid, names, 1, 0, &id);
  if (answer >= 0)
    answer = target->Invoke(id, kNullGuid, 0, kDispatchMethod, &parameters, called.result.address(),
                            &exception, &bad);
  if (answer < 0) called.failure = failure_of(answer, exception);
  return called;
}

}  // namespace kw::cases
