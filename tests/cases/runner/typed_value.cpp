#include "typed_value.h"

#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <stdexcept>

#include "base/unicode.h"
#include "fake_objects.h"
#include "kwutils/array.h"
#include "kwutils/error.h"

namespace kw::cases {
namespace {

double number_of(const Json& value) {
  if (value.is_number()) return value.get<double>();
  const std::string& word = value.get_ref<const std::string&>();
  if (word == "nan") return std::numeric_limits<double>::quiet_NaN();
  if (word == "inf") return std::numeric_limits<double>::infinity();
  if (word == "-inf") return -std::numeric_limits<double>::infinity();
  if (word == "-0.0") return -0.0;
  throw std::runtime_error("no number: " + word);
}

template <class T>
T element_of(const Json& value) {
  if constexpr (std::is_same_v<T, String>)
    return String(std::u16string_view(units(value)));
  else if constexpr (std::is_floating_point_v<T>)
    return static_cast<T>(number_of(value));
  else
    return value.get<T>();
}

template <class T>
Variant array_variant(const Json& typed) {
  Variant result;
  result.address()->vt = kVtArray | kElementKind<T>;
  if (typed["v"].is_null()) return result;
  std::vector<T> values;
  for (const Json& value : typed["v"]) values.push_back(element_of<T>(value));
  result.address()->parray = Array<T>::of(typed.value("lb", 0), std::move(values)).release();
  return result;
}

Variant array_of(const Json& typed) {
  const std::string of = typed.at("of");
  if (of == "str") return array_variant<String>(typed);
  if (of == "i2") return array_variant<std::int16_t>(typed);
  if (of == "i4") return array_variant<std::int32_t>(typed);
  if (of == "r4") return array_variant<float>(typed);
  if (of == "r8") return array_variant<double>(typed);
  throw std::runtime_error("unknown array element: " + of);
}

Variant collection_item(const Json& value) {
  if (value.is_object()) return Variant(Object::attach(new FakeObject("", Json::object())));
  return variant_of(value);
}

Variant collection_of(const Json& typed, const MakeCollection& make) {
  const Object collection = make();
  for (const Json& entry : typed.at("items")) {
    const Variant item = collection_item(entry.at("v"));
    if (entry.contains("k") && !entry["k"].is_null()) {
      const Variant key{std::u16string_view(units(entry["k"]))};
      collection.call(u"Add", {&item, &key});
    } else {
      collection.call(u"Add", {&item});
    }
  }
  return Variant(collection);
}

Variant bool_of(const Json& value) {
  if (value.is_boolean()) return Variant(Boolean(value.get<bool>()));
  return Variant(Boolean::from_bits(value.get<std::int16_t>()));
}

Variant value_of(const Json& typed, const MakeCollection& make) {
  const std::string kind = typed.at("t");
  if (kind == "str") return Variant(std::u16string_view(units(typed.at("v"))));
  if (kind == "i2") return Variant(typed.at("v").get<std::int16_t>());
  if (kind == "i4") return Variant(typed.at("v").get<std::int32_t>());
  if (kind == "r4") return Variant(static_cast<float>(number_of(typed.at("v"))));
  if (kind == "r8") return Variant(number_of(typed.at("v")));
  if (kind == "bool") return bool_of(typed.at("v"));
  if (kind == "missing") return Variant::missing();
  if (kind == "empty") return {};
  if (kind == "nothing") return Variant(Object());
  if (kind == "array") return array_of(typed);
  if (kind == "coll") return collection_of(typed, make);
  if (kind == "object")
    return Variant(
        Object::attach(new FakeObject(typed.at("kind"), typed.value("props", Json::object()))));
  if (kind == "group") return Variant(make_group(typed.at("v")));
  throw std::runtime_error("unknown kind of value: " + kind);
}

std::string no_match(const std::string& expected, const std::string& got) {
  return "expected " + expected + ", got " + got;
}

template <class T, class Bits>
bool same_bits(T left, T right) {
  if (std::isnan(left) && std::isnan(right)) return true;
  return std::bit_cast<Bits>(left) == std::bit_cast<Bits>(right);
}

template <class T>
bool same_element(const T& got, const Json& expected) {
  if constexpr (std::is_same_v<T, String>)
    return got.view() == units(expected);
  else if constexpr (std::is_same_v<T, float>)
    return same_bits<float, std::uint32_t>(got, static_cast<float>(number_of(expected)));
  else if constexpr (std::is_same_v<T, double>)
    return same_bits<double, std::uint64_t>(got, number_of(expected));
  else
    return got == expected.get<T>();
}

std::string bounds_text(std::int64_t lower, std::int64_t upper) {
  return "bounds " + std::to_string(lower) + " to " + std::to_string(upper);
}

template <class T>
std::string array_difference(SAFEARRAY* got, const Json& typed) {
  Array<T> array = Array<T>::attach(got);
  struct GiveBack {
    Array<T>& array;
    ~GiveBack() { array.release(); }
  } give_back{array};
  if (typed["v"].is_null()) return array.dimensioned() ? "expected no dimensions" : "";
  if (!array.dimensioned()) return "never dimensioned";
  const auto count = static_cast<std::int64_t>(typed["v"].size());
  const std::int64_t lower = typed.value("lb", 0);
  if (array.lower() != lower || static_cast<std::int64_t>(array.size()) != count)
    return no_match(bounds_text(lower, lower + count - 1),
                    bounds_text(array.lower(), array.upper()));
  std::size_t i = 0;
  for (const T& element : array.elements()) {
    const Json& expected = typed["v"][i++];
    if (same_element(element, expected)) continue;
    VARIANT shown_value = {};
    shown_value.vt = kElementKind<T>;
    std::memcpy(&shown_value.llVal, &element, sizeof(T));
    return "element " + std::to_string(lower + static_cast<std::int64_t>(i) - 1) + ": " +
           no_match(expected.dump(), described(shown_value));
  }
  return "";
}

std::string any_array_difference(const VARIANT& got, const Json& typed) {
  const std::string of = typed.at("of");
  if ((got.vt & kVtArray) == 0) return no_match("an array", described(got));
  if (of == "str") return array_difference<String>(got.parray, typed);
  if (of == "i2") return array_difference<std::int16_t>(got.parray, typed);
  if (of == "i4") return array_difference<std::int32_t>(got.parray, typed);
  if (of == "r4") return array_difference<float>(got.parray, typed);
  return array_difference<double>(got.parray, typed);
}

bool has_key(const Object& collection, const Json& key, const Variant& item) {
  const Variant text{std::u16string_view(units(key))};
  const Variant found = collection.call(u"Item", {&text});
  if (found.is_object()) return item.is_object() && found.raw().punkVal == item.raw().punkVal;
  return found.text().view() == item.text().view();
}

std::string items_difference(const Object& collection, const Json& items) {
  const std::int32_t count = collection.get(u"Count").to_int32();
  if (count != static_cast<std::int32_t>(items.size()))
    return no_match(std::to_string(items.size()) + " items", std::to_string(count));
  for (std::int32_t i = 1; i <= count; ++i) {
    const Json& expected = items[static_cast<std::size_t>(i - 1)];
    const Variant position(i);
    const Variant item = collection.call(u"Item", {&position});
    const std::string where = "item " + std::to_string(i) + ": ";
    if (expected["v"].is_object() != item.is_object()) return where + described(item.raw());
    if (!item.is_object()) {
      const std::string difference = value_difference(item.raw(), expected["v"]);
      if (!difference.empty()) return where + difference;
    }
    if (!expected.contains("k") || expected["k"].is_null()) continue;
    try {
      if (!has_key(collection, expected["k"], item)) return where + "another item has its key";
    } catch (const Error&) {
      return where + "no item under key " + expected["k"].dump();
    }
  }
  return "";
}

Object object_in(const VARIANT& value) {
  return value.vt == kVtDispatch ? Object::share(value.pdispVal) : Object();
}

std::string properties_difference(const FakeObject& object, const Json& expected) {
  for (const auto& [name, value] : expected.items()) {
    const auto found = object.properties().find(name);
    if (found == object.properties().end()) return "property " + name + " was never set";
    const std::string difference = value_difference(found->second.raw(), value);
    if (!difference.empty()) return "property " + name + ": " + difference;
  }
  return "";
}

std::string log_difference(const Log& got, const Json& expected) {
  const std::size_t shared = std::min(got.size(), expected.size());
  for (std::size_t i = 0; i < shared; ++i)
    if (got[i] != expected[i])
      return "step " + std::to_string(i) + ": " + no_match(expected[i].dump(), got[i].dump());
  if (got.size() == expected.size()) return "";
  return no_match(std::to_string(expected.size()) + " steps", std::to_string(got.size()));
}

}  // namespace

std::string described(const VARIANT& value) {
  switch (value.vt) {
    case kVtEmpty:
      return "empty";
    case kVtBstr:
      return shown({value.bstrVal, SysStringLen(value.bstrVal)});
    case kVtDispatch:
      return value.pdispVal != nullptr ? "an object" : "nothing";
    case kVtError:
      return "the missing marker";
    default:
      break;
  }
  if ((value.vt & kVtArray) != 0) return "an array";
  return json_of(value).dump() + " (kind " + std::to_string(value.vt) + ")";
}

std::string value_difference(const VARIANT& got, const Json& expected) {
  const std::string other = no_match(expected.dump(), described(got));
  if (expected.is_null()) return got.vt == kVtEmpty ? "" : other;
  if (expected.is_string())
    return got.vt == kVtBstr && units(expected) ==
                                    std::u16string_view(got.bstrVal != nullptr ? got.bstrVal : u"",
                                                        SysStringLen(got.bstrVal))
               ? ""
               : other;
  if (expected.is_boolean())
    return got.vt == kVtBool && (got.boolVal == -1) == expected.get<bool>() &&
                   (got.boolVal == 0 || got.boolVal == -1)
               ? ""
               : other;
  if (expected.is_number()) {
    const bool number = got.vt == kVtI2 || got.vt == kVtI4 || got.vt == kVtR4 || got.vt == kVtR8;
    return number && Variant::copy_of(got).to_double() == expected.get<double>() ? "" : other;
  }
  const std::string kind = expected.at("t");
  if (kind == "array") return any_array_difference(got, expected);
  if (kind == "coll") {
    const Object collection = object_in(got);
    return collection ? items_difference(collection, expected.at("items")) : other;
  }
  if (kind == "empty") return got.vt == kVtEmpty ? "" : other;
  if (kind == "nothing") return got.vt == kVtDispatch && got.pdispVal == nullptr ? "" : other;
  if (kind == "str") return value_difference(got, expected.at("v"));
  if (kind == "i2") return got.vt == kVtI2 && got.iVal == expected.at("v") ? "" : other;
  if (kind == "i4") return got.vt == kVtI4 && got.lVal == expected.at("v") ? "" : other;
  if (kind == "r4")
    return got.vt == kVtR4 && same_element(got.fltVal, expected.at("v")) ? "" : other;
  if (kind == "r8")
    return got.vt == kVtR8 && same_element(got.dblVal, expected.at("v")) ? "" : other;
  if (kind == "bool")
    return got.vt == kVtBool && got.boolVal == bool_of(expected.at("v")).raw().boolVal ? "" : other;
  if (kind == "missing") return Variant::copy_of(got).is_missing() ? "" : other;
  return "unknown kind of value: " + kind;
}

CallerVariable::CallerVariable(const Json& typed, const MakeCollection& make_collection)
    : value_(value_of(typed, make_collection)),
      held_(object_in(value_.raw())),
      by_reference_(typed.value("ref", false)),
      as_variant_(typed.value("variant", false)) {}

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

std::string CallerVariable::difference(const Json& expected) const {
  if (expected.contains("held")) {
    const std::string held = items_difference(held_, expected["held"]);
    if (!held.empty()) return "held collection: " + held;
  }
  if (expected.contains("props") && held_)
    return properties_difference(static_cast<const FakeObject&>(*held_.pointer()),
                                 expected["props"]);
  if (expected.contains("log") && held_)
    return log_difference(static_cast<const FakeObject&>(*held_.pointer()).log(), expected["log"]);
  if (!expected.contains("t")) return "";
  return value_difference(value_.raw(), expected);
}

}  // namespace kw::cases
