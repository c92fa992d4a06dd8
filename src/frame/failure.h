// The one place where what was thrown inside becomes what a caller receives.
#pragma once

#include "kwutils/automation.h"
#include "kwutils/string.h"

namespace kw::frame {

class ClassTable;

// A failure as a caller sees it: a status and, for a run-time error, its source and description.
struct Failure {
  HRESULT status = 0;
  bool described = false;
  String source;
  String description;
};

// Called while an exception is being handled. An Error becomes 0x800A0000 + its number; lack of
// memory and anything else become the fitting standard status.
Failure current_failure(const ClassTable& of_class) noexcept;

// Hands the failure to the caller of a slot: through the thread's error info, and as the status.
HRESULT publish(Failure failure, const ClassTable& of_class) noexcept;

// Hands the failure to the caller of a late-bound call: `exception` (may be null) and the status.
HRESULT raise(Failure failure, EXCEPINFO* exception) noexcept;

}  // namespace kw::frame
