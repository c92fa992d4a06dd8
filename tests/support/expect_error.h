// Runs something that throws kw::Error and hands the error out.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>

#include "kwutils/error.h"

namespace kw::testing {

// The error that `operation` throws. The test fails when it throws none.
template <class Operation>
Error error_of(Operation operation) {
  try {
    operation();
  } catch (const Error& error) {
    return error;
  }
  ADD_FAILURE() << "no error was thrown";
  return Error(ErrorNumber{0});
}

// The number of the error that `operation` throws; 0 when it throws none.
template <class Operation>
std::int32_t number_of(Operation operation) {
  try {
    operation();
  } catch (const Error& error) {
    return static_cast<std::int32_t>(error.number);
  }
  return 0;
}

}  // namespace kw::testing
