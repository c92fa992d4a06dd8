#include "desktop/pump_store.h"

namespace {

constexpr const char* kType = "PUMP";

Text value_of(const Library& library, const Text& entity, const char* item) {
  Text keyword(item), value;
  SAFEARRAY* scratch = nullptr;
  const HRESULT status = library.parser->ParseValuewithTokenandCheck(entity.get(), keyword.place(),
                                                                     &scratch, 1, value.place());
  SafeArrayDestroy(scratch);
  check(status);
  return value;
}

// The entity with another value of an item. One that it lacks goes to its first line, where items
// are looked up.
Text with_value(const Library& library, Text entity, const std::string& item,
                const std::string& value) {
  if (value_of(library, entity, item.c_str()).empty())
    return Text(item + " " + value + " " + entity.bytes());
  Text keyword(item), replacement(value), result;
  check(library.parser->ReplaceEntity(entity.place(), keyword.place(), replacement.place(),
                                      result.place()));
  return result;
}

Text item_at(_Collection* collection, LONG place) {
  VARIANT index{}, item{};
  V_VT(&index) = VT_I4;
  V_I4(&index) = place;
  check(collection->Item(&index, &item));
  return Text::take(V_BSTR(&item));
}

VARIANT left_out() {
  VARIANT missing{};
  V_VT(&missing) = VT_ERROR;
  V_ERROR(&missing) = DISP_E_PARAMNOTFOUND;
  return missing;
}

}  // namespace

std::vector<PumpEntry> PumpStore::list() {
  Text type(kType), id_item("id"), every, name_item("nm");
  Reference<_Collection> ids, names;
  VARIANT_BOOL afresh = VARIANT_TRUE, duplicates = VARIANT_FALSE;
  VARIANT none = left_out();
  check(library_.store->List2EntitieswithSearch(
      file_.place(), type.place(), id_item.place(), every.place(), ids.place(), name_item.place(),
      names.place(), &afresh, &duplicates, &none, &none, &none, &none));
  LONG count = 0;
  check(ids->Count(&count));
  std::vector<PumpEntry> result;
  for (LONG i = 1; i <= count; ++i)
    result.push_back({item_at(ids.get(), i), item_at(names.get(), i)});
  return result;
}

Text PumpStore::entity(const Text& id) {
  Text type(kType), text;
  check(library_.store->GetEntity(file_.place(), type.place(), id.get(), text.place()));
  return text;
}

Pump PumpStore::read(const Text& id) {
  const Text text = entity(id);
  Pump pump;
  pump.units = value_of(library_, text, "units");
  pump.power = value_of(library_, text, "kw");
  pump.level = value_of(library_, text, "level");
  pump.drive = static_cast<short>(std::atoi(value_of(library_, text, "drive").bytes().c_str()));
  return pump;
}

void PumpStore::write(Text& id, const Pump& pump) {
  Text type(kType), text = entity(id);
  text = with_value(library_, std::move(text), "units", pump.units.bytes());
  text = with_value(library_, std::move(text), "kw", pump.power.bytes());
  text = with_value(library_, std::move(text), "level", pump.level.bytes());
  text = with_value(library_, std::move(text), "drive", std::to_string(pump.drive));
  check(library_.store->WriteEntity(file_.place(), type.place(), id.place(), text.place()));
}
