// The pumps of an entity file.
#pragma once

#include <vector>

#include "client/text.h"
#include "desktop/library.h"

struct Pump {
  Text units;
  Text power;
  Text level;
  short drive = 0;
};

struct PumpEntry {
  Text id;
  Text name;
};

class PumpStore {
 public:
  // The library has to outlive the store.
  PumpStore(const Library& library, const char* file) : library_(library), file_(file) {}

  // All pumps by identifier and name, in the order of the file.
  std::vector<PumpEntry> list();
  Pump read(const Text& id);
  // Replaces the values, keeps whatever else the file says of the pump.
  void write(Text& id, const Pump& pump);

 private:
  Text entity(const Text& id);

  const Library& library_;
  Text file_;
};
