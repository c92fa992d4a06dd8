#include "library.h"

#include <utility>

#include "base/unicode.h"
#include "kwutils/error.h"
#include "kwutils/string.h"
#include "kwutils/variant.h"
#include "platform/class_loader.h"
#include "server/class_list.h"
#include "types/status.h"

namespace kw::cases {

Library::Library(std::string path) : path_(std::move(path)) {
  void* door = nullptr;
  check_status(factory("clsParse")->QueryInterface(kIidHostDoor, &door));
  door_ = static_cast<IHostDoor*>(door);
}

IUnknown* Library::factory(const std::string& class_name) const {
  const frame::ClassTable* table = server::find_class(from_utf8(class_name));
  if (table == nullptr) throw Error(ErrorNumber::cannot_create_object, class_name);
  return platform::load_class_factory(path_, table->description().class_id);
}

Object Library::create(const std::string& class_name) const {
  void* maker = nullptr;
  check_status(factory(class_name)->QueryInterface(kIidClassFactory, &maker));
  void* object = nullptr;
  check_status(static_cast<IClassFactory*>(maker)->CreateInstance(nullptr, kIidDispatch, &object));
  return Object::attach(static_cast<IDispatch*>(object));
}

Object Library::make_collection() const {
  Variant unset;
  Variant reference;
  reference.address()->vt = kVtByRef | kVtVariant;
  reference.address()->pvarVal = unset.address();
  const Variant nothing(u""), token(u"x");
  create("clsParse").call(u"ParseSubEntitiesIntoColl", {&nothing, &token, &reference});
  return unset.to_object();
}

void Library::set_host(const HostFunctions* functions) const { door_->SetFunctions(functions); }

void Library::open_file(std::int16_t number, std::u16string_view name,
                        NumberedFileMode mode) const {
  String text(name);
  check_status(door_->OpenFile(number, text.get(), mode));
}

void Library::close_file(std::int16_t number) const { door_->CloseFile(number); }

}  // namespace kw::cases
