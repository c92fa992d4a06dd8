#include "slot_call.h"

#include "base/unicode.h"
#include "kwutils/error.h"
#include "server/class_list.h"
#include "slot_calls.h"
#include "types/status.h"

namespace kw::cases {
namespace {

const SlotCall* find_call(std::string_view class_name, std::string_view method) {
  for (const SlotCall& call : slot_calls())
    if (call.class_name == class_name && frame::same_name(from_utf8(method), call.method))
      return &call;
  return nullptr;
}

// What the thread's error object tells, besides the status.
Failure failure_of(HRESULT answer) {
  Failure failure = {error_number(answer), {}, {}};
  IErrorInfo* info = nullptr;
  if (GetErrorInfo(0, &info) != status::kOk) return failure;
  BSTR text = nullptr;
  if (info->GetSource(&text) >= 0) failure.source = taken(text);
  if (info->GetDescription(&text) >= 0) failure.description = taken(text);
  info->Release();
  return failure;
}

// The object through the interface of its own class.
class OwnInterface {
 public:
  OwnInterface(const Object& object, std::string_view class_name) {
    const GUID& iid = server::find_class(from_utf8(class_name))->description().interface_id;
    void* found = nullptr;
    check_status(object.pointer()->QueryInterface(iid, &found));
    pointer_ = static_cast<IUnknown*>(found);
  }
  OwnInterface(const OwnInterface&) = delete;
  OwnInterface& operator=(const OwnInterface&) = delete;
  ~OwnInterface() { pointer_->Release(); }
  IUnknown* get() const noexcept { return pointer_; }

 private:
  IUnknown* pointer_ = nullptr;
};

HRESULT called_slot(const OwnInterface& object, const SlotCall& call, std::vector<VARIANT>& sent,
                    VARIANT* result) {
  if (sent.size() > call.parameters) return status::kBadParameterCount;
  SlotArguments arguments(sent, call.parameters, result);
  SetErrorInfo(0, nullptr);
  const HRESULT answer = call.call(object.get(), arguments);
  arguments.write_back();
  return answer;
}

}  // namespace

Called call_slot(const Object& object, std::string_view class_name, std::string_view method,
                 std::vector<VARIANT> sent) {
  Called called;
  const SlotCall* const call = find_call(class_name, method);
  if (call == nullptr) {
    called.failure = {error_number(status::kUnknownName), {}, {}};
    return called;
  }
  try {
    const OwnInterface own(object, class_name);
    const HRESULT answer = called_slot(own, *call, sent, called.result.address());
    if (answer < 0) called.failure = failure_of(answer);
  } catch (const Error& error) {  // an argument that no variable of the declared type could hold
    called.failure = {static_cast<std::int64_t>(error.number), {}, {}};
  }
  if (called.failure) called.result = Variant();
  return called;
}

}  // namespace kw::cases
