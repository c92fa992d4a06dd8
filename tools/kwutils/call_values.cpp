#include "tool/call_values.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "base/unicode.h"
#include "kwutils/array.h"
#include "kwutils/collection.h"
#include "tool/failure.h"

namespace kw::tool {
namespace {

using frame::Kind;
using Json = nlohmann::ordered_json;

[[noreturn]] void refuse(const frame::Parameter& parameter, std::string_view text,
                         const std::string& wanted) {
  fail_usage("argument " + in_quotes(parameter.name) + ": " + in_quotes(text) + " is no " + wanted);
}

String text_in(const Json& value) {
  if (value.is_string()) return String::from_utf8(value.get_ref<const std::string&>());
  return String::from_utf8(value.dump());
}

Variant scalar_in(const Json& value) {
  if (value.is_null()) return {};
  if (value.is_boolean()) return Variant(Boolean(value.get<bool>()));
  if (value.is_number_integer() && value == value.get<std::int32_t>())
    return Variant(value.get<std::int32_t>());
  if (value.is_number()) return Variant(value.get<double>());
  return Variant(text_in(value));
}

Variant collection_in(const Json& value) {
  const Collection collection = Collection::create();
  for (const auto& [key, item] : value.items()) {
    if (value.is_object())
      collection.add(scalar_in(item), from_utf8(key));
    else
      collection.add(scalar_in(item));
  }
  return Variant(collection.object());
}

template <class T>
T element_in(const Json& value) {
  if constexpr (std::is_same_v<T, String>) {
    return text_in(value);
  } else {
    const Variant number(text_in(value));
    if constexpr (std::is_same_v<T, std::int16_t>) return number.to_int16();
    if constexpr (std::is_same_v<T, std::int32_t>) return number.to_int32();
    if constexpr (std::is_same_v<T, float>) return number.to_single();
    if constexpr (std::is_same_v<T, double>) return number.to_double();
  }
}

template <class T>
Variant array_in(const Json& value) {
  Variant result;
  result.address()->vt = kVtArray | kElementKind<T>;
  if (value.is_null()) return result;
  const Json& list = value.is_object() ? value.at("values") : value;
  if (!list.is_array()) throw Error(ErrorNumber::type_mismatch);
  std::vector<T> elements;
  for (const Json& element : list) elements.push_back(element_in<T>(element));
  const auto lower = value.is_object() ? value.value("lower", 0) : 0;
  result.address()->parray = Array<T>::of(lower, std::move(elements)).release();
  return result;
}

Variant boolean_in(std::string_view text) {
  if (text == "true" || text == "True") return Variant(Boolean(true));
  if (text == "false" || text == "False") return Variant(Boolean(false));
  return Variant(Boolean::from_bits(Variant(String::from_utf8(text)).to_int16()));
}

Variant any_in(std::string_view text) {
  const Json value = Json::parse(text, nullptr, false);
  if (value.is_discarded()) return Variant(String::from_utf8(text));
  return value.is_structured() ? collection_in(value) : scalar_in(value);
}

Variant object_in(std::string_view text, Kind kind) {
  if (text == "nothing") return Variant(Object());
  if (kind != Kind::collection) throw Error(ErrorNumber::type_mismatch);
  const Json value = Json::parse(text);
  if (!value.is_structured()) throw Error(ErrorNumber::type_mismatch);
  return collection_in(value);
}

const char* wanted(Kind kind) {
  switch (kind) {
    case Kind::int16:
      return "whole number of 16 bits";
    case Kind::int32:
      return "whole number of 32 bits";
    case Kind::single:
    case Kind::real:
      return "number";
    case Kind::boolean:
      return "truth value (true, false)";
    case Kind::collection:
      return "collection (a JSON list or object, or nothing)";
    case Kind::text_array:
      return "array of texts (a JSON list)";
    case Kind::int16_array:
    case Kind::int32_array:
    case Kind::single_array:
    case Kind::real_array:
      return "array of numbers (a JSON list)";
    default:
      return "object that can be given here (only: nothing)";
  }
}

Variant value_in(std::string_view text, Kind kind) {
  const auto variant = [text] { return Variant(String::from_utf8(text)); };
  switch (kind) {
    case Kind::int16:
      return Variant(variant().to_int16());
    case Kind::int32:
      return Variant(variant().to_int32());
    case Kind::single:
      return Variant(variant().to_single());
    case Kind::real:
      return Variant(variant().to_double());
    case Kind::boolean:
      return boolean_in(text);
    case Kind::variant:
      return any_in(text);
    case Kind::text_array:
      return array_in<String>(Json::parse(text));
    case Kind::int16_array:
      return array_in<std::int16_t>(Json::parse(text));
    case Kind::int32_array:
      return array_in<std::int32_t>(Json::parse(text));
    case Kind::single_array:
      return array_in<float>(Json::parse(text));
    case Kind::real_array:
      return array_in<double>(Json::parse(text));
    case Kind::text:
      return variant();
    default:
      return object_in(text, kind);
  }
}

}  // namespace

Variant read_argument(std::string_view text, const frame::Parameter& parameter) {
  try {
    return value_in(text, parameter.kind);
  } catch (const Error&) {
    refuse(parameter, text, wanted(parameter.kind));
  } catch (const Json::exception&) {
    refuse(parameter, text, wanted(parameter.kind));
  }
}

Variant initial_value(const frame::Parameter& parameter) {
  Variant result;
  if (parameter.kind != Kind::variant) result.address()->vt = frame::vartype_of(parameter.kind);
  return result;
}

VARIANT argument_for(Variant& value, const frame::Parameter& parameter) {
  if (!parameter.by_reference || value.is_missing()) return value.raw();
  VARIANT reference = {};
  if (parameter.kind == Kind::variant || value.raw().vt == kVtEmpty) {
    reference.vt = kVtByRef | kVtVariant;
    reference.pvarVal = value.address();
  } else {
    reference.vt = static_cast<VARTYPE>(value.raw().vt | kVtByRef);
    reference.byref = &value.address()->llVal;
  }
  return reference;
}

}  // namespace kw::tool
