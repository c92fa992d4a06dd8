#include "client/failure.h"

#include <sstream>
#include <stdexcept>

#include "client/reference.h"
#include "client/text.h"

namespace {

std::string words_for(HRESULT status) {
  if (status == REGDB_E_CLASSNOTREG) return "the library is not registered";
  std::ostringstream words;
  words << "status 0x" << std::hex << static_cast<unsigned long>(status);
  return words.str();
}

}  // namespace

void check(HRESULT status) {
  if (SUCCEEDED(status)) return;
  Reference<IErrorInfo> info;
  if (GetErrorInfo(0, info.place()) != S_OK) throw std::runtime_error(words_for(status));
  Text source, description;
  info->GetSource(source.place());
  info->GetDescription(description.place());
  throw std::runtime_error(source.bytes() + ": " + description.bytes());
}
