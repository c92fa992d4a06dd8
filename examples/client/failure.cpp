#include "client/failure.h"

#include <stdexcept>

#include "client/reference.h"
#include "client/text.h"

void check(HRESULT status) {
  if (SUCCEEDED(status)) return;
  Reference<IErrorInfo> info;
  if (GetErrorInfo(0, info.place()) != S_OK)
    throw std::runtime_error("status " + std::to_string(static_cast<unsigned>(status)));
  Text source, description;
  info->GetSource(source.place());
  info->GetDescription(description.place());
  throw std::runtime_error(source.bytes() + ": " + description.bytes());
}
