#include "typed_value.h"

#include <cmath>
#include <vector>

#include "fake_objects.h"

namespace kw::cases {
namespace {

const Json& value_field(const Json& typed) { return required_field(typed, "v"); }

// The lower bound; both bounds of an array are 32-bit numbers, also of an empty one.
std::int32_t lower_bound(const Json& typed, std::size_t count) {
  const Json* bound = optional_field(typed, "lb");
  if (bound == nullptr) return 0;
  const auto length = static_cast<std::int64_t>(count);
  constexpr std::int64_t lowest = INT32_MIN, highest = INT32_MAX;
  return static_cast<std::int32_t>(
      whole_number(*bound, "lb", lowest + (length == 0), highest - std::max(length - 1, {})));
}

template <class T>
Variant array_variant(const Json& typed) {
  Variant result;
  result.address()->vt = kVtArray | kElementKind<T>;
  const Json& elements = value_field(typed);
  const std::int32_t lower = lower_bound(typed, elements.size());
  if (elements.is_null()) return result;
  if (!elements.is_array()) throw Malformed("v: neither a list nor null");
  std::vector<T> values;
  for (const Json& value : elements) values.push_back(element_of<T>(value));
  result.address()->parray = Array<T>::of(lower, std::move(values)).release();
  return result;
}

Variant array_of(const Json& typed) {
  return with_element_type(typed, [&](const auto& element) {
    return array_variant<std::decay_t<decltype(element)>>(typed);
  });
}

Variant collection_item(const Json& value) {
  if (value.is_object()) return Variant(Object::attach(new FakeObject("", Json::object())));
  return variant_of(value);
}

Variant collection_of(const Json& typed, const MakeCollection& make) {
  const Json& items = required_field(typed, "items");
  check_items(items);
  const Object collection = make();
  for (const Json& entry : items) {
    const Variant item = collection_item(value_field(entry));
    const Json* key = optional_field(entry, "k");
    const Variant key_text =
        key != nullptr ? Variant(std::u16string_view(units(*key))) : Variant::missing();
    collection.call(u"Add", {&item, &key_text});
  }
  return Variant(collection);
}

Variant bool_of(const Json& value) {
  if (value.is_boolean()) return Variant(Boolean(value.get<bool>()));
  return Variant(Boolean::from_bits(whole_number<std::int16_t>(value, "bool")));
}

Variant object_of(const Json& typed) {
  return Variant(
      Object::attach(new FakeObject(text_field(typed, "kind"), object_field(typed, "props"))));
}

}  // namespace

void check_typed(const Json& typed) {
  check_fields(
      typed, "typed value",
      {"t", "v", "ref", "name", "variant", "of", "lb", "items", "kind", "props", "held", "log"});
  flag_field(typed, "ref");
  flag_field(typed, "variant");
}

double number_of(const Json& value) {
  if (value.is_number()) return value.get<double>();
  if (value == "nan") return std::numeric_limits<double>::quiet_NaN();
  if (value == "inf") return std::numeric_limits<double>::infinity();
  if (value == "-inf") return -std::numeric_limits<double>::infinity();
  if (value == "-0.0") return -0.0;
  throw Malformed("no number: " + shown_json(value));
}

template <>
float element_of<float>(const Json& value) {
  const double number = number_of(value);
  const float single = static_cast<float>(number);
  if (std::isfinite(number) && !std::isfinite(single))
    throw Malformed("r4: " + value.dump() + " is too large");
  return single;
}

Variant value_of(const Json& typed, const MakeCollection& make) {
  check_typed(typed);
  const std::string kind = text_field(typed, "t");
  if (kind == "str") return Variant(std::u16string_view(text_of(value_field(typed), kind)));
  if (kind == "i2") return Variant(whole_number<std::int16_t>(value_field(typed), kind));
  if (kind == "i4") return Variant(whole_number<std::int32_t>(value_field(typed), kind));
  if (kind == "r4") return Variant(element_of<float>(value_field(typed)));
  if (kind == "r8") return Variant(number_of(value_field(typed)));
  if (kind == "bool") return bool_of(value_field(typed));
  if (kind == "missing") return Variant::missing();
  if (kind == "empty") return {};
  if (kind == "nothing") return Variant(Object());
  if (kind == "array") return array_of(typed);
  if (kind == "coll") return collection_of(typed, make);
  if (kind == "object") return object_of(typed);
  if (kind == "group") return Variant(make_group(value_field(typed)));
  throw Malformed("unknown kind of value: " + kind);
}

void check_expected(const Json& value) {
  if (value.is_array()) throw Malformed("a list is no value");
  if (!value.is_object()) return;
  check_typed(value);
  const std::string kind = text_field(value, "t");
  if (kind == "coll") return check_items(required_field(value, "items"));
  if (kind != "object" && kind != "group") value_of(value, {});
}

void check_items(const Json& items) {
  if (!items.is_array()) throw Malformed("the items of a collection: no list");
  for (const Json& entry : items) {
    check_fields(entry, "item of a collection", {"k", "v"});
    if (const Json* key = optional_field(entry, "k")) text_of(*key, "k");
    const Json& value = value_field(entry);
    if (value.is_object() && (value.size() != 1 || text_field(value, "t") != "obj"))
      throw Malformed("item of a collection: neither a text, a number nor an object");
    if (!value.is_object()) variant_of(value);
  }
}

}  // namespace kw::cases
