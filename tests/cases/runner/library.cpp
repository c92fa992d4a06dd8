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

namespace {

// The interface of this kind; the object itself is given up.
template <class T>
T* exchanged(IUnknown* object, const GUID& iid) {
  void* other = nullptr;
  const HRESULT answer = object->QueryInterface(iid, &other);
  object->Release();
  check_status(answer);
  return static_cast<T*>(other);
}

}  // namespace

Library::Library(std::string path, Route route) : path_(std::move(path)), route_(route) {
  IClassFactory& any = factory("clsParse");
  any.AddRef();
  door_ = exchanged<IHostDoor>(&any, kIidHostDoor);
}

IClassFactory& Library::factory(const std::string& class_name) const {
  IClassFactory*& kept = factories_[class_name];
  if (kept != nullptr) return *kept;
  const frame::ClassTable* table = server::find_class(from_utf8(class_name));
  if (table == nullptr) throw Error(ErrorNumber::cannot_create_object, class_name);
  IUnknown* found = platform::load_class_factory(path_, table->description().class_id);
  kept = exchanged<IClassFactory>(found, kIidClassFactory);
  return *kept;
}

Object Library::create(const std::string& class_name) const {
  void* object = nullptr;
  check_status(factory(class_name).CreateInstance(nullptr, kIidDispatch, &object));
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
