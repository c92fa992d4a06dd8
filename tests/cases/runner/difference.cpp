#include "difference.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "fake_objects.h"
#include "kwutils/error.h"
#include "typed_value.h"

namespace kw::cases {
namespace {

std::u16string_view text_in(const VARIANT& value) {
  return {value.bstrVal != nullptr ? value.bstrVal : u"", SysStringLen(value.bstrVal)};
}

template <class Bits, class T>
bool same_number(T left, T right) {
  if (std::isnan(left) && std::isnan(right)) return true;
  return std::bit_cast<Bits>(left) == std::bit_cast<Bits>(right);
}

bool same_value(const VARIANT& left, const VARIANT& right) {
  if (left.vt != right.vt) return false;
  switch (left.vt) {
    case kVtEmpty:
      return true;
    case kVtBstr:
      return text_in(left) == text_in(right);
    case kVtI2:
      return left.iVal == right.iVal;
    case kVtI4:
      return left.lVal == right.lVal;
    case kVtR4:
      return same_number<std::uint32_t>(left.fltVal, right.fltVal);
    case kVtR8:
      return same_number<std::uint64_t>(left.dblVal, right.dblVal);
    case kVtBool:
      return left.boolVal == right.boolVal;
    case kVtError:
      return left.scode == right.scode;
    case kVtDispatch:
      return left.pdispVal == right.pdispVal;
    default:
      return false;
  }
}

bool same_plain_number(const VARIANT& got, double expected) {
  switch (got.vt) {
    case kVtI2:
      return got.iVal == expected;
    case kVtI4:
      return got.lVal == expected;
    case kVtR4:  // a single is written with as many digits as its writer likes
      return got.fltVal == static_cast<float>(expected);
    case kVtR8:
      return got.dblVal == expected;
    default:
      return false;
  }
}

bool same_plain(const VARIANT& got, const Json& expected) {
  if (expected.is_number()) return same_plain_number(got, expected.get<double>());
  if (expected.is_string()) return got.vt == kVtBstr && text_in(got) == units(expected);
  if (expected.is_boolean())
    return got.vt == kVtBool && got.boolVal == Boolean(expected.get<bool>()).bits();
  return expected.is_null() && got.vt == kVtEmpty;
}

// One element of an array as a value that borrows it.
template <class T>
VARIANT borrowed(const T& element) {
  VARIANT value = {};
  value.vt = kElementKind<T>;
  std::memcpy(&value.llVal, &element, sizeof(T));
  return value;
}

std::string bounds_text(std::int64_t lower, std::size_t count) {
  return "bounds " + std::to_string(lower) + " to " +
         std::to_string(lower + static_cast<std::int64_t>(count) - 1);
}

template <class T>
std::string elements_difference(const Array<T>& got, const Array<T>& wanted) {
  if (got.dimensioned() != wanted.dimensioned())
    return wanted.dimensioned() ? "never dimensioned" : "expected no dimensions";
  if (!got.dimensioned()) return "";
  if (got.lower() != wanted.lower() || got.size() != wanted.size())
    return no_match(bounds_text(wanted.lower(), wanted.size()),
                    bounds_text(got.lower(), got.size()));
  for (std::size_t i = 0; i < got.size(); ++i) {
    const VARIANT found = borrowed(got.elements()[i]);
    const VARIANT expected = borrowed(wanted.elements()[i]);
    if (!same_value(found, expected))
      return "element " + std::to_string(got.lower() + static_cast<std::int64_t>(i)) + ": " +
             no_match(described(expected), described(found));
  }
  return "";
}

// An array that belongs to a variant, as one that can be read.
template <class T>
class Borrowed {
 public:
  explicit Borrowed(const VARIANT& value) : array_(Array<T>::attach(value.parray)) {}
  Borrowed(const Borrowed&) = delete;
  Borrowed& operator=(const Borrowed&) = delete;
  ~Borrowed() { array_.release(); }
  const Array<T>& operator*() const { return array_; }

 private:
  Array<T> array_;
};

std::string array_difference(const VARIANT& got, const Json& typed) {
  const Variant wanted = value_of(typed, {});
  if (got.vt != wanted.raw().vt) return no_match(described(wanted.raw()), described(got));
  return with_element_type(typed, [&](const auto& element) {
    using T = std::decay_t<decltype(element)>;
    return elements_difference<T>(*Borrowed<T>(got), *Borrowed<T>(wanted.raw()));
  });
}

bool is_object(const VARIANT& value) {
  return value.vt == kVtDispatch && value.pdispVal != nullptr;
}

std::string typed_difference(const VARIANT& got, const Json& expected) {
  const Json& kind = expected.at("t");
  if (kind == "array") return array_difference(got, expected);
  if (kind == "object" || kind == "group")
    return is_object(got) ? "" : no_match("an object", described(got));
  if (kind == "coll")
    return is_object(got) ? items_difference(Object::share(got.pdispVal), expected.at("items"))
                          : no_match("a collection", described(got));
  const Variant wanted = value_of(expected, {});
  return same_value(got, wanted.raw()) ? "" : no_match(described(wanted.raw()), described(got));
}

Variant item_at(const Object& collection, std::int32_t position) {
  const Variant at(position);
  return collection.call(u"Item", {&at});
}

// The position of the item under a key: what is put in before the item takes its place.
std::int32_t position_of(const Object& collection, const Variant& key) {
  const Variant marker(Object::attach(new FakeObject("", Json::object())));
  const Variant no_key = Variant::missing();
  collection.call(u"Add", {&marker, &no_key, &key});
  std::int32_t position = 1;
  while (!same_value(item_at(collection, position).raw(), marker.raw())) ++position;
  const Variant at(position);
  collection.call(u"Remove", {&at});
  return position;
}

std::string key_difference(const Object& collection, const Json& key, std::int32_t position) {
  const Variant text{std::u16string_view(units(key))};
  try {
    const Variant found = collection.call(u"Item", {&text});
    const bool same = same_value(found.raw(), item_at(collection, position).raw()) &&
                      position_of(collection, text) == position;
    return same ? "" : "another item has the key " + shown_json(key);
  } catch (const Error&) {
    return "no item has the key " + shown_json(key);
  }
}

std::string item_difference(const Object& collection, const Json& expected, std::int32_t position) {
  const Variant item = item_at(collection, position);
  const Json& value = expected.at("v");
  if (value.is_object() && !is_object(item.raw()))
    return no_match("an object", described(item.raw()));
  const std::string difference = value.is_object() ? "" : value_difference(item.raw(), value);
  const Json* key = optional_field(expected, "k");
  return difference.empty() && key != nullptr ? key_difference(collection, *key, position)
                                              : difference;
}

std::string all_items_difference(const Object& collection, const Json& items) {
  const std::int32_t count = collection.get(u"Count").to_int32();
  if (count != static_cast<std::int64_t>(items.size()))
    return no_match(std::to_string(items.size()) + " items", std::to_string(count));
  for (std::int32_t i = 1; i <= count; ++i) {
    const std::string difference =
        item_difference(collection, items[static_cast<std::size_t>(i - 1)], i);
    if (!difference.empty()) return "item " + std::to_string(i) + ": " + difference;
  }
  return "";
}

template <class T>
std::string number_text(T number, int digits, const char* kind) {
  char text[40];
  std::snprintf(text, sizeof text, "%.*g (%s)", digits, static_cast<double>(number), kind);
  return text;
}

std::string kind_text(VARTYPE kind) {
  switch (kind) {
    case kVtBstr:
      return "str";
    case kVtI2:
      return "i2";
    case kVtI4:
      return "i4";
    case kVtR4:
      return "r4";
    case kVtR8:
      return "r8";
    default:
      return "kind " + std::to_string(kind);
  }
}

std::string bool_text(const VARIANT& value) {
  if (value.boolVal == 0) return "false";
  return value.boolVal == -1 ? "true" : std::to_string(value.boolVal) + " (bool)";
}

}  // namespace

std::string no_match(const std::string& expected, const std::string& got) {
  return "expected " + expected + ", got " + got;
}

std::string described(const VARIANT& value) {
  if ((value.vt & kVtArray) != 0)
    return "an array of " + kind_text(static_cast<VARTYPE>(value.vt & ~kVtArray));
  switch (value.vt) {
    case kVtEmpty:
      return "empty";
    case kVtBstr:
      return shown(text_in(value));
    case kVtDispatch:
      return value.pdispVal != nullptr ? "an object" : "nothing";
    case kVtError:
      return "the missing marker";
    case kVtBool:
      return bool_text(value);
    case kVtI2:
      return std::to_string(value.iVal) + " (i2)";
    case kVtI4:
      return std::to_string(value.lVal) + " (i4)";
    case kVtR4:
      return number_text(value.fltVal, 9, "r4");
    case kVtR8:
      return number_text(value.dblVal, 17, "r8");
    default:
      return "a value of " + kind_text(value.vt);
  }
}

std::string value_difference(const VARIANT& got, const Json& expected) {
  if (expected.is_object()) return typed_difference(got, expected);
  return same_plain(got, expected) ? "" : no_match(shown_json(expected), described(got));
}

std::string items_difference(const Object& collection, const Json& items) {
  try {
    return all_items_difference(collection, items);
  } catch (const Error& error) {
    return std::string("reading the collection: ") + error.what();
  }
}

}  // namespace kw::cases
