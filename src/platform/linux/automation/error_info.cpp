// The error object of each thread, and the standard error object.
#include <atomic>
#include <new>
#include <utility>

#include "kwutils/automation.h"

namespace kw {
namespace {

class ErrorInfo final : public ICreateErrorInfo, public IErrorInfo {
 public:
  ErrorInfo() = default;
  ErrorInfo(const ErrorInfo&) = delete;
  ErrorInfo& operator=(const ErrorInfo&) = delete;

  HRESULT QueryInterface(const GUID& iid, void** object) override {
    if (object == nullptr) return status::kPointer;
    *object = nullptr;
    if (iid == kIidUnknown || iid == kIidCreateErrorInfo) {
      *object = static_cast<ICreateErrorInfo*>(this);
    } else if (iid == kIidErrorInfo) {
      *object = static_cast<IErrorInfo*>(this);
    } else {
      return status::kNoInterface;
    }
    AddRef();
    return status::kOk;
  }

  std::uint32_t AddRef() override { return ++references_; }

  std::uint32_t Release() override {
    const std::uint32_t left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT SetGUID(const GUID& iid) override {
    iid_ = iid;
    return status::kOk;
  }
  HRESULT SetSource(OLECHAR* text) override { return set(source_, text); }
  HRESULT SetDescription(OLECHAR* text) override { return set(description_, text); }
  HRESULT SetHelpFile(OLECHAR* text) override { return set(help_file_, text); }
  HRESULT SetHelpContext(std::uint32_t context) override {
    help_context_ = context;
    return status::kOk;
  }

  HRESULT GetGUID(GUID* iid) override { return give(iid_, iid); }
  HRESULT GetSource(BSTR* text) override { return get(source_, text); }
  HRESULT GetDescription(BSTR* text) override { return get(description_, text); }
  HRESULT GetHelpFile(BSTR* text) override { return get(help_file_, text); }
  HRESULT GetHelpContext(std::uint32_t* context) override { return give(help_context_, context); }

 private:
  ~ErrorInfo() {
    SysFreeString(source_);
    SysFreeString(description_);
    SysFreeString(help_file_);
  }

  static HRESULT set(BSTR& field, const OLECHAR* text) {
    return SysReAllocString(&field, text) ? status::kOk : status::kOutOfMemory;
  }

  static HRESULT get(BSTR field, BSTR* text) {
    if (text == nullptr) return status::kInvalidArgument;
    *text = SysAllocString(field);
    return *text != nullptr || field == nullptr ? status::kOk : status::kOutOfMemory;
  }

  template <typename T>
  static HRESULT give(const T& field, T* value) {
    if (value == nullptr) return status::kInvalidArgument;
    *value = field;
    return status::kOk;
  }

  std::atomic<std::uint32_t> references_{1};
  GUID iid_{};
  BSTR source_ = nullptr;
  BSTR description_ = nullptr;
  BSTR help_file_ = nullptr;
  std::uint32_t help_context_ = 0;
};

// Holds one reference; the last one goes when the thread ends.
struct ThreadError {
  IErrorInfo* info = nullptr;

  ~ThreadError() { put(nullptr); }

  void put(IErrorInfo* fresh) {
    if (IErrorInfo* const old = std::exchange(info, fresh)) old->Release();
  }
};

thread_local ThreadError thread_error;

}  // namespace

HRESULT SetErrorInfo(std::uint32_t reserved, IErrorInfo* info) {
  if (reserved != 0) return status::kInvalidArgument;
  if (info != nullptr) info->AddRef();
  thread_error.put(info);
  return status::kOk;
}

HRESULT GetErrorInfo(std::uint32_t reserved, IErrorInfo** info) {
  if (reserved != 0 || info == nullptr) return status::kInvalidArgument;
  *info = std::exchange(thread_error.info, nullptr);
  return *info != nullptr ? status::kOk : status::kFalse;
}

HRESULT CreateErrorInfo(ICreateErrorInfo** info) {
  if (info == nullptr) return status::kInvalidArgument;
  *info = new (std::nothrow) ErrorInfo;
  return *info != nullptr ? status::kOk : status::kOutOfMemory;
}

}  // namespace kw
