#include "method_call.h"

#include "base/unicode.h"
#include "types/status.h"

namespace kw::cases {
namespace {

// The error numbers that stand for the standard statuses.
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

Failure failure_of(HRESULT answer, const EXCEPINFO& exception) {
  if (answer != status::kException) return {error_number(answer), {}, {}};
  SysFreeString(exception.bstrHelpFile);
  return {error_number(exception.scode), taken(exception.bstrSource),
          taken(exception.bstrDescription)};
}

}  // namespace

std::vector<CallerVariable> MethodCaller::variables(const Json& args) const {
  std::vector<CallerVariable> result;
  result.reserve(args.size());
  for (const Json& typed : args)
    result.emplace_back(typed, [this] { return library_.make_collection(); });
  return result;
}

Called MethodCaller::call(const std::string& method, std::vector<CallerVariable>& variables) const {
  std::vector<VARIANT> reversed;
  for (auto at = variables.rbegin(); at != variables.rend(); ++at)
    reversed.push_back(at->argument());
  DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<std::uint32_t>(reversed.size()),
                           0};
  std::u16string name = from_utf8(method);
  char16_t* names[] = {name.data()};
  DISPID id = 0;
  EXCEPINFO exception = {};
  std::uint32_t bad = 0;
  Called called;
  HRESULT answer = object_.pointer()->GetIDsOfNames(kNullGuid, names, 1, 0, &id);
  if (answer >= 0)
    answer = object_.pointer()->Invoke(id, kNullGuid, 0, kDispatchMethod, &parameters,
                                       called.result.address(), &exception, &bad);
  if (answer < 0) called.failure = failure_of(answer, exception);
  return called;
}

}  // namespace kw::cases
