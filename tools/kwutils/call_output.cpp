#include <string>

#include "frame/collection_items.h"
#include "frame/collection_object.h"
#include "kwutils/array.h"
#include "tool/call_values.h"

namespace kw::tool {
namespace {

template <class T>
void write_element(JsonWriter& json, const T& element) {
  if constexpr (std::is_same_v<T, String>)
    json.text(element.view());
  else if constexpr (std::is_integral_v<T>)
    json.number(std::int64_t{element});
  else
    json.number(element);
}

template <class T>
void write_elements(JsonWriter& json, const Array<T>& array) {
  const std::int32_t lower = array.lower();
  if (lower != 0) {
    json.begin_object();
    json.key("lower").number(std::int64_t{lower});
    json.key("values");
  }
  json.begin_array();
  for (const T& element : array.elements()) write_element(json, element);
  json.end();
  if (lower != 0) json.end();
}

template <class T>
void write_array(JsonWriter& json, SAFEARRAY* array) {
  Array<T> view = Array<T>::attach(array);
  struct GiveBack {
    Array<T>& array;
    ~GiveBack() { array.release(); }
  } give_back{view};
  if (view.dimensioned())
    write_elements(json, view);
  else
    json.null();
}

void write_array(JsonWriter& json, const VARIANT& value) {
  switch (value.vt & kVtTypeMask) {
    case kVtBstr:
      return write_array<String>(json, value.parray);
    case kVtI2:
      return write_array<std::int16_t>(json, value.parray);
    case kVtI4:
      return write_array<std::int32_t>(json, value.parray);
    case kVtR4:
      return write_array<float>(json, value.parray);
    default:
      return write_array<double>(json, value.parray);
  }
}

// Which of its items have keys: those that have are written as an object, others as a list.
enum class Keys { none, all, some };

Keys keys_of(const frame::CollectionItems& items) {
  std::size_t with_key = 0;
  for (std::size_t i = 1; i <= items.size(); ++i)
    with_key += items.at(static_cast<std::int64_t>(i)).has_key ? 1 : 0;
  if (with_key == 0) return Keys::none;
  return with_key == items.size() ? Keys::all : Keys::some;
}

void write_node(JsonWriter& json, const frame::CollectionNode& node, Keys keys) {
  if (keys == Keys::some) json.begin_object();
  if (keys == Keys::some && node.has_key) json.key("key").text(node.key());
  if (keys == Keys::some) json.key("item");
  if (keys == Keys::all) json.key(node.key());
  write_value(json, node.item.raw());
  if (keys == Keys::some) json.end();
}

void write_collection(JsonWriter& json, const frame::CollectionItems& items) {
  const Keys keys = keys_of(items);
  if (keys == Keys::all)
    json.begin_object();
  else
    json.begin_array();
  for (std::size_t i = 1; i <= items.size(); ++i)
    write_node(json, items.at(static_cast<std::int64_t>(i)), keys);
  json.end();
}

void write_object(JsonWriter& json, IDispatch* object) {
  if (object == nullptr) return json.null();
  const frame::CollectionItems* items = frame::own_items(object);
  if (items == nullptr) return json.text("object");
  write_collection(json, *items);
}

}  // namespace

void write_value(JsonWriter& json, const VARIANT& value) {
  if ((value.vt & kVtArray) != 0) return write_array(json, value);
  switch (value.vt) {
    case kVtBstr:
      return json.text(std::u16string_view(value.bstrVal != nullptr ? value.bstrVal : u"",
                                           SysStringLen(value.bstrVal)));
    case kVtI2:
      return json.number(std::int64_t{value.iVal});
    case kVtI4:
      return json.number(std::int64_t{value.lVal});
    case kVtR4:
      return json.number(value.fltVal);
    case kVtR8:
      return json.number(value.dblVal);
    case kVtBool:
      return json.boolean(value.boolVal != 0);
    case kVtDispatch:
      return write_object(json, value.pdispVal);
    default:
      return json.null();
  }
}

}  // namespace kw::tool
