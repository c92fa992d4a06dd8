#include "kwutils/object.h"

#include <string>
#include <vector>

#include "kwutils/error.h"
#include "kwutils/string.h"
#include "kwutils/variant.h"
#include "types/status.h"

namespace kw {
namespace {

constexpr std::uint32_t kNeutralLocale = 0;

// What the called object reported, as an Error of ours.
[[noreturn]] void throw_reported(EXCEPINFO& info) {
  if (info.pfnDeferredFillIn != nullptr) info.pfnDeferredFillIn(&info);
  const String source = String::attach(info.bstrSource);
  const String description = String::attach(info.bstrDescription);
  SysFreeString(info.bstrHelpFile);
  const std::uint32_t code = static_cast<std::uint32_t>(info.scode);
  const std::int32_t number = info.wCode != 0                       ? info.wCode
                              : (code & 0xFFFF0000u) == 0x800A0000u ? info.scode & 0xFFFF
                                                                    : info.scode;
  Error error{ErrorNumber{number}};
  error.source = source.utf8();
  error.description = description.utf8();
  throw error;
}

}  // namespace

Object Object::attach(IDispatch* object) noexcept {
  Object result;
  result.object_ = object;
  return result;
}

Object Object::share(IDispatch* object) noexcept {
  if (object != nullptr) object->AddRef();
  return attach(object);
}

std::int32_t Object::id_of(std::u16string_view name) const {
  if (object_ == nullptr) throw Error(ErrorNumber::object_not_set);
  std::u16string text(name);
  char16_t* names[] = {text.data()};
  std::int32_t id = 0;
  check_status(object_->GetIDsOfNames(kNullGuid, names, 1, kNeutralLocale, &id));
  return id;
}

bool Object::answers(std::u16string_view name) const noexcept {
  try {
    id_of(name);
    return true;
  } catch (...) {
    return false;
  }
}

Variant Object::invoke(std::int32_t id, std::uint16_t kind, DISPPARAMS& parameters) const {
  if (object_ == nullptr) throw Error(ErrorNumber::object_not_set);
  const Object alive = *this;
  Variant result;
  EXCEPINFO info = {};
  std::uint32_t bad_argument = 0;
  const bool wants_result = kind != kDispatchPropertyPut;
  const HRESULT answer =
      alive.object_->Invoke(id, kNullGuid, kNeutralLocale, kind, &parameters,
                            wants_result ? result.address() : nullptr, &info, &bad_argument);
  if (answer == status::kException) throw_reported(info);
  check_status(answer);
  return result;
}

Variant Object::get(std::u16string_view name) const {
  DISPPARAMS none = {};
  return invoke(id_of(name), kDispatchMethod | kDispatchPropertyGet, none);
}

Variant Object::get_default() const {
  DISPPARAMS none = {};
  return invoke(kDispidValue, kDispatchMethod | kDispatchPropertyGet, none);
}

void Object::put(std::u16string_view name, const Variant& value) const {
  DISPID named = kDispidPropertyPut;
  VARIANT argument = value.raw();
  DISPPARAMS parameters = {&argument, &named, 1, 1};
  invoke(id_of(name), kDispatchPropertyPut, parameters);
}

Variant Object::call(std::u16string_view name,
                     std::initializer_list<const Variant*> arguments) const {
  std::vector<VARIANT> reversed(arguments.size());
  auto to = reversed.end();
  for (const Variant* argument : arguments) *--to = argument->raw();
  DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<std::uint32_t>(reversed.size()),
                           0};
  return invoke(id_of(name), kDispatchMethod, parameters);
}

Object::Members Object::members() const {
  DISPPARAMS none = {};
  const Variant answer = invoke(kDispidNewEnum, kDispatchMethod | kDispatchPropertyGet, none);
  void* members = nullptr;
  if (!answer.is_object() || answer.contents().punkVal == nullptr ||
      answer.contents().punkVal->QueryInterface(kIidEnumVariant, &members) < 0)
    throw Error(ErrorNumber::no_such_member);
  return Members(static_cast<IEnumVARIANT*>(members));
}

Object::Members::~Members() {
  if (members_ != nullptr) members_->Release();
}

bool Object::Members::next(Variant& member) {
  Variant value;
  std::uint32_t fetched = 0;
  const HRESULT answer = members_->Next(1, value.address(), &fetched);
  check_status(answer);
  if (answer != status::kOk || fetched != 1) return false;
  member = std::move(value);
  return true;
}

}  // namespace kw
