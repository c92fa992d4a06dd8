// A client that calls the methods through their slots, as a compiled program does. It needs no
// import library: kwutils_classes.h, made from the interface definitions, declares the interfaces.
//
//   slots FILE [KWUTILS.DLL]
//
// Lists the pumps of an entity file by their power, and gives the strongest one a new name. With
// the path of a library it uses that file, else the registered library.
#include <kwutils_classes.h>

#include <iostream>
#include <stdexcept>
#include <vector>

#include "client/classes.h"
#include "client/text.h"

namespace {

struct Pump {
  std::string id;
  std::string name;
  double power;
};

// An item's value in an entity's text; "" when it has none.
std::string value_of(_clsParse* parser, const Text& entity, const char* item) {
  Text keyword(item), value;
  SAFEARRAY* scratch = nullptr;
  const HRESULT status = parser->ParseValuewithTokenandCheck(entity.get(), keyword.place(),
                                                             &scratch, 1, value.place());
  SafeArrayDestroy(scratch);
  check(status);
  return value.bytes();
}

std::vector<Pump> read_pumps(const Classes& classes, const char* file_name) {
  const auto store = classes.create<_clsFileReadWrite, clsFileReadWrite>();
  const auto parser = classes.create<_clsParse, clsParse>();
  Text file(file_name), type("pump");
  // The library puts a collection of its own there.
  Reference<_Collection> entities;
  VARIANT_BOOL found = VARIANT_FALSE;
  check(store->GetEntitiesIntoColl(file.place(), type.place(), entities.place(), &found));
  LONG count = 0;
  check(entities->Count(&count));
  std::vector<Pump> pumps;
  for (LONG i = 1; i <= count; ++i) {
    VARIANT place{}, entity{};
    V_VT(&place) = VT_I4;
    V_I4(&place) = i;
    check(entities->Item(&place, &entity));
    Text text;
    *text.place() = V_BSTR(&entity);
    pumps.push_back({value_of(parser.get(), text, "id"), value_of(parser.get(), text, "nm"),
                     std::stod(value_of(parser.get(), text, "kw"))});
  }
  return pumps;
}

// Their places in descending order of power.
std::vector<LONG> order_by_power(const Classes& classes, const std::vector<Pump>& pumps) {
  const auto sorter = classes.create<_clsQSort, clsQSort>();
  SAFEARRAY* powers = SafeArrayCreateVector(VT_R8, 0, static_cast<ULONG>(pumps.size()));
  for (LONG i = 0; i < static_cast<LONG>(pumps.size()); ++i)
    SafeArrayPutElement(powers, &i, const_cast<double*>(&pumps[static_cast<std::size_t>(i)].power));
  SAFEARRAY* order = nullptr;
  VARIANT_BOOL descending = VARIANT_TRUE, sorted = VARIANT_FALSE;
  const HRESULT status = sorter->dQSortIndex(&powers, &order, &descending, &sorted);
  std::vector<LONG> places(pumps.size());
  for (LONG i = 0; sorted == VARIANT_TRUE && i < static_cast<LONG>(places.size()); ++i)
    SafeArrayGetElement(order, &i, &places[static_cast<std::size_t>(i)]);
  SafeArrayDestroy(powers);
  SafeArrayDestroy(order);
  check(status);
  return places;
}

void rename(const Classes& classes, const char* file_name, const std::string& identifier,
            const char* name) {
  const auto store = classes.create<_clsFileReadWrite, clsFileReadWrite>();
  const auto parser = classes.create<_clsParse, clsParse>();
  Text file(file_name), type("pump"), id(identifier), entity, item("nm"), value(name), changed;
  check(store->GetEntity(file.place(), type.place(), id.get(), entity.place()));
  check(parser->ReplaceEntity(entity.place(), item.place(), value.place(), changed.place()));
  check(store->WriteEntity(file.place(), type.place(), id.place(), changed.place()));
}

void run(const char* file, const char* library) {
  const Classes classes(library);
  std::vector<Pump> pumps = read_pumps(classes, file);
  const std::vector<LONG> order = order_by_power(classes, pumps);
  for (const LONG place : order) {
    const Pump& pump = pumps[static_cast<std::size_t>(place)];
    std::cout << pump.id << ": " << pump.name << ", " << pump.power << " kW\n";
  }
  if (order.empty()) return;
  const std::string strongest = pumps[static_cast<std::size_t>(order[0])].id;
  rename(classes, file, strongest, "'The strongest'");
  for (const Pump& pump : read_pumps(classes, file))
    if (pump.id == strongest) std::cout << "now " << pump.id << ": " << pump.name << "\n";
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) {
    std::cerr << "usage: slots FILE [KWUTILS.DLL]\n";
    return 2;
  }
  CoInitialize(nullptr);
  int status = 0;
  try {
    run(arguments[1], count > 2 ? arguments[2] : nullptr);
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    status = 1;
  }
  CoUninitialize();
  return status;
}
