#include "caller_variable.h"

#include <algorithm>

#include "difference.h"

namespace kw::cases {
namespace {

Object object_in(const VARIANT& value) {
  return value.vt == kVtDispatch ? Object::share(value.pdispVal) : Object();
}

}  // namespace

CallerVariable::CallerVariable(const Json& typed, const MakeCollection& make_collection)
    : value_(value_of(typed, make_collection)),
      held_(object_in(value_.raw())),
      is_collection_(typed["t"] == "coll"),
      by_reference_(flag_field(typed, "ref")),
      as_variant_(flag_field(typed, "variant")) {
  if (typed["t"] == "object") fake_ = static_cast<const FakeObject*>(held_.pointer());
}

VARIANT CallerVariable::argument() {
  const VARIANT& value = value_.raw();
  if (!by_reference_ || value_.is_missing()) return value;
  VARIANT reference = {};
  if (as_variant_ || value.vt == kVtEmpty) {
    reference.vt = kVtByRef | kVtVariant;
    reference.pvarVal = value_.address();
  } else {
    reference.vt = static_cast<VARTYPE>(value.vt | kVtByRef);
    reference.byref = &value_.address()->llVal;
  }
  return reference;
}

std::vector<std::string> CallerVariable::differences(const Json& expected) const {
  std::vector<std::string> result;
  const auto note = [&](const std::string& difference) {
    if (!difference.empty()) result.push_back(difference);
  };
  if (expected.is_null()) return result;
  if (expected.contains("t")) note(value_difference(value_.raw(), expected));
  if (const Json* items = optional_field(expected, "held")) note(held_difference(*items));
  if (const Json* values = optional_field(expected, "props")) note(properties_difference(*values));
  if (const Json* steps = optional_field(expected, "log")) note(log_difference(*steps));
  return result;
}

void CallerVariable::check_expected_entry(const Json& expected) {
  if (expected.is_null()) return;
  check_typed(expected);
  if (expected.contains("t")) check_expected(expected);
  if (const Json* items = optional_field(expected, "held")) check_items(*items);
  for (const auto& property : object_field(expected, "props").items())
    check_expected(property.value());
  for (const Json& step : list_field(expected, "log"))
    if (!step.is_array()) throw Malformed("log: a step is no list");
  const auto compares = [&](const char* name) { return optional_field(expected, name) != nullptr; };
  if (!compares("t") && !compares("held") && !compares("props") && !compares("log"))
    throw Malformed("args_after: an entry compares nothing");
}

std::string CallerVariable::held_difference(const Json& items) const {
  if (!is_collection_) return "held: no collection was passed in";
  const std::string difference = items_difference(held_, items);
  return difference.empty() ? "" : "held collection: " + difference;
}

std::string CallerVariable::properties_difference(const Json& expected) const {
  if (fake_ == nullptr) return "props: no object was passed in";
  for (const auto& [name, value] : expected.items()) {
    const auto found = fake_->properties().find(name);
    if (found == fake_->properties().end()) return "property " + name + " was never set";
    const std::string difference = value_difference(found->second.raw(), value);
    if (!difference.empty()) return "property " + name + ": " + difference;
  }
  return "";
}

std::string CallerVariable::log_difference(const Json& expected) const {
  if (fake_ == nullptr) return "log: no object was passed in";
  const Log& got = fake_->log();
  const std::size_t shared = std::min(got.size(), expected.size());
  for (std::size_t i = 0; i < shared; ++i)
    if (got[i] != expected[i])
      return "step " + std::to_string(i + 1) + ": " + no_match(expected[i].dump(), got[i].dump());
  if (got.size() == expected.size()) return "";
  return no_match(std::to_string(expected.size()) + " steps", std::to_string(got.size()));
}

}  // namespace kw::cases
