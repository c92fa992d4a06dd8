#include "frame/failure.h"

#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include "frame/class_table.h"
#include "kwutils/error.h"

namespace kw::frame {
namespace {

Failure plain(HRESULT of_status) noexcept {
  Failure failure;
  failure.status = of_status;
  return failure;
}

// Numbers beyond the run-time errors are statuses that a caller's own object reported.
HRESULT status_of(ErrorNumber error) {
  const auto number = static_cast<std::int32_t>(error);
  return number < 0 || number > 0xFFFF ? number : status::kRunTimeError + number;
}

Failure described(const Error& error, const ClassTable& of_class) {
  if (error.number == ErrorNumber::out_of_memory) return plain(status::kOutOfMemory);
  Failure failure = plain(status_of(error.number));
  failure.described = true;
  failure.source = String::from_utf8(
      error.source.empty() ? "kwUtils." + std::string(of_class.description().name) : error.source);
  failure.description = String::from_utf8(error.text());
  return failure;
}

Failure translated(const ClassTable& of_class) {
  try {
    throw;
  } catch (const Error& error) {
    return described(error, of_class);
  } catch (const std::bad_alloc&) {
    return plain(status::kOutOfMemory);
  } catch (const std::length_error&) {
    return plain(status::kOutOfMemory);
  } catch (...) {
    return plain(status::kUnexpected);
  }
}

}  // namespace

Failure current_failure(const ClassTable& of_class) noexcept {
  try {
    return translated(of_class);
  } catch (...) {
    return plain(status::kOutOfMemory);
  }
}

HRESULT publish(Failure failure, const ClassTable& of_class) noexcept {
  ICreateErrorInfo* info = nullptr;
  if (!failure.described || CreateErrorInfo(&info) < 0) return failure.status;
  info->SetGUID(of_class.description().interface_id);
  info->SetSource(failure.source.data());
  info->SetDescription(failure.description.data());
  void* reader = nullptr;
  if (info->QueryInterface(kIidErrorInfo, &reader) >= 0) {
    SetErrorInfo(0, static_cast<IErrorInfo*>(reader));
    static_cast<IErrorInfo*>(reader)->Release();
  }
  info->Release();
  return failure.status;
}

HRESULT raise(Failure failure, EXCEPINFO* exception) noexcept {
  if (!failure.described) return failure.status;
  if (exception != nullptr) {
    *exception = {};
    exception->scode = failure.status;
    exception->bstrSource = failure.source.release();
    exception->bstrDescription = failure.description.release();
  }
  return status::kException;
}

}  // namespace kw::frame
