// What an entry without a class of its own answers when its work fails.
#pragma once

#include <new>
#include <utility>

#include "kwutils/automation.h"
#include "kwutils/error.h"

namespace kw::frame {

// Runs `body`. What it throws becomes a status: an Error 0x800A0000 + its number, lack of memory
// and anything else the fitting standard one.
template <class Body>
HRESULT guarded(Body&& body) noexcept {
  try {
    std::forward<Body>(body)();
    return status::kOk;
  } catch (const Error& error) {
    return status::kRunTimeError + static_cast<std::int32_t>(error.number);
  } catch (const std::bad_alloc&) {
    return status::kOutOfMemory;
  } catch (...) {
    return status::kUnexpected;
  }
}

}  // namespace kw::frame
