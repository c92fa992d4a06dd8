// The library under test: loaded from its file, reached through its class factories alone.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "kwutils/host.h"
#include "kwutils/object.h"

namespace kw::cases {

// How methods are called: by name, as scripts do, or through their slots, as compiled clients do.
enum class Route { late_bound, slots };

class Library {
 public:
  // Throws kw::Error 429 when the file is no such library.
  explicit Library(std::string path, Route route = Route::late_bound);

  Route route() const noexcept { return route_; }

  // A fresh object of a class ("clsParse"); error 429 when there is no such class.
  Object create(const std::string& class_name) const;
  // An empty collection of the library's own kind.
  Object make_collection() const;
  void set_host(const HostFunctions* functions) const;
  void open_file(std::int16_t number, std::u16string_view name, NumberedFileMode mode) const;
  void close_file(std::int16_t number) const;

 private:
  IClassFactory& factory(const std::string& class_name) const;

  std::string path_;
  Route route_;
  mutable std::map<std::string, IClassFactory*> factories_;  // kept to the end of the program
  IHostDoor* door_;
};

}  // namespace kw::cases
