// Random late-bound calls with random arguments on every class: each gives a result or a status.
#include <string>
#include <vector>

#include "base/code_page.h"
#include "frame/factory.h"
#include "input.h"
#include "kwutils/array.h"
#include "kwutils/collection.h"
#include "kwutils/host.h"
#include "platform/memory_files.h"
#include "server/class_list.h"

namespace {

using namespace kw;

// Values that a caller could hold. By-reference ones refer to a variable of the call's own.
Variant value_from(fuzz::Input& input) {
  switch (input.byte() % 10) {
    case 0:
      return Variant(String(widen(input.text())));
    case 1:
      return Variant(input.number<std::int16_t>());
    case 2:
      return Variant(input.number<std::int32_t>());
    case 3:
      return Variant(input.number<float>());
    case 4:
      return Variant(input.number<double>());
    case 5:
      return Variant(Boolean::from_bits(input.number<std::int16_t>()));
    case 6:
      return Variant::missing();
    case 7:
      return Variant(Collection::create().object());
    case 8: {
      std::vector<String> texts;
      for (int i = input.byte() % 4; i > 0; --i) texts.emplace_back(widen(input.text()));
      Variant array;
      array.address()->vt = kVtArray | kVtBstr;
      array.address()->parray = Array<String>::of(input.byte() % 3, std::move(texts)).release();
      return array;
    }
    default:
      return {};
  }
}

// A replacement that contains what it replaces never ends; that is a promise, and no case for a
// fuzzer. Names of methods that can meet such a pair.
bool may_never_end(std::string_view method) {
  return method == "ReplaceAllOccurs" || method == "MakeAbsolute" || method == "UnMakeAbsolute";
}

void call(const frame::ClassTable& table, Object& object, fuzz::Input& input) {
  const auto& methods = table.description().methods;
  const frame::Method& method = methods[input.byte() % methods.size()];
  if (may_never_end(method.name)) return;
  std::vector<Variant> variables;
  std::vector<VARIANT> arguments;
  for (std::size_t i = 0; i < method.parameters.size(); ++i) variables.push_back(value_from(input));
  const std::uint8_t how = input.byte();
  for (Variant& variable : variables) {
    VARIANT argument = variable.raw();
    if ((how & 1) != 0) {
      argument = {};
      argument.vt = kVtByRef | kVtVariant;
      argument.pvarVal = variable.address();
    } else if ((how & 2) != 0 && !variable.is_missing() && !variable.is_empty()) {
      argument.vt = static_cast<VARTYPE>(argument.vt | kVtByRef);
      argument.byref = &variable.address()->llVal;
    }
    arguments.push_back(argument);
  }
  if ((how & 4) != 0 && !arguments.empty()) arguments.pop_back();
  DISPPARAMS sent = {arguments.data(), nullptr, static_cast<std::uint32_t>(arguments.size()), 0};
  Variant result;
  EXCEPINFO exception = {};
  std::uint32_t bad = 0;
  object.pointer()->Invoke(method.id, kNullGuid, 0, kDispatchMethod, &sent, result.address(),
                           &exception, &bad);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
}

// Nobody answers the messages of a fuzzer.
void silence_host() {
  HostFunctions host;
  host.message_box = [](void*, BSTR, MessageButtons) KW_STDCALL { return MessageAnswer::abort; };
  set_host(host);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  silence_host();
  fuzz::Input input(data, size);
  platform::MemoryFiles files;
  files.put(u"a.ent", "; c\r\nNODE id '1' nm 'A' node\r\nLINK id 'L' TBLE 1 2 <\r\ntble link\r\n");
  const platform::ScopedFileService in_memory(files);
  const auto tables = server::classes();
  const frame::ClassTable& table = *tables[input.byte() % tables.size()];
  void* made = nullptr;
  if (frame::create_object(table, kIidDispatch, &made) < 0) return 0;
  Object object = Object::attach(static_cast<IDispatch*>(made));
  for (int calls = 0; calls < 8 && !input.empty(); ++calls) call(table, object, input);
  return 0;
}
