#include "method_call.h"

#include "late_call.h"
#include "slot_call.h"

namespace kw::cases {

std::vector<CallerVariable> MethodCaller::variables(const Json& args) const {
  std::vector<CallerVariable> result;
  result.reserve(args.size());
  for (const Json& typed : args)
    result.emplace_back(typed, [this] { return library_.make_collection(); });
  return result;
}

Called MethodCaller::call(const std::string& method, std::vector<CallerVariable>& variables) const {
  std::vector<VARIANT> sent;
  for (CallerVariable& variable : variables) sent.push_back(variable.argument());
  return library_.route() == Route::slots ? call_slot(object_, class_name_, method, sent)
                                          : call_late(object_, method, sent);
}

}  // namespace kw::cases
