#include "bad_calls.h"

#include <gtest/gtest.h>

#include "base/unicode.h"
#include "server/class_list.h"
#include "types/status.h"

namespace kw::cases {
namespace {

using frame::Kind;

Variant harmless(const frame::Parameter& parameter) {
  if (parameter.kind == Kind::variant) return parameter.optional ? Variant::missing() : Variant();
  Variant value;
  value.address()->vt = frame::vartype_of(parameter.kind);
  value.address()->llVal = 0;
  return value;
}

const frame::ClassTable& table_of(const SlotCall& call) {
  return *server::find_class(from_utf8(call.class_name));
}

}  // namespace

BadCall::BadCall(const Library& library, const SlotCall& call)
    : call_(call), method_(table_of(call).method(from_utf8(call.method))) {
  const Object object = library.create(std::string(call.class_name));
  void* own = nullptr;
  check_status(object.pointer()->QueryInterface(table_of(call).description().interface_id, &own));
  object_ = static_cast<IUnknown*>(own);
  for (const frame::Parameter& parameter : method_->parameters)
    arguments_.push_back(harmless(parameter));
}

BadCall::~BadCall() { object_->Release(); }

HRESULT BadCall::make() {
  std::vector<VARIANT> sent;
  for (Variant& argument : arguments_) {
    VARIANT variable = {};
    variable.vt = kVtByRef | kVtVariant;
    variable.pvarVal = argument.address();
    sent.push_back(variable);
  }
  Variant result;
  SlotArguments arguments(sent, call_.parameters, no_result_ ? nullptr : result.address());
  if (null_ < arguments_.size()) arguments.at(null_).make_null();
  const HRESULT answer = call_.call(object_, arguments);
  if (answer < 0) result.release();
  return answer;
}

BadCaller::BadCaller() : host_(Json::object(), directory_.system_path(), false) {
  library().set_host(&host_.functions());
}

BadCaller::~BadCaller() { library().set_host(nullptr); }

const Library& BadCaller::library() const noexcept {
  static const Library loaded(KW_LIBRARY);
  return loaded;
}

int BadCaller::each(const Chosen& chosen, const Spoil& spoil, const Judge& judge) const {
  int made = 0;
  for (const SlotCall& call : slot_calls())
    for (std::size_t i = 0; i < call.parameters; ++i) {
      BadCall bad(library(), call);
      const frame::Parameter& parameter = bad.method().parameters[i];
      if (!chosen(parameter)) continue;
      SCOPED_TRACE(std::string(call.class_name) + "." + std::string(call.method) + ", " +
                   std::string(parameter.name));
      spoil(bad, i);
      judge(parameter, bad.make());
      ++made;
    }
  return made;
}

}  // namespace kw::cases
