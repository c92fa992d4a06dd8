// Runs something that must throw kw::Error and hands the error out.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <utility>

#include "kwutils/error.h"

namespace kw::testing {

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

template <class Operation>
std::int32_t number_of(Operation operation) {
  return static_cast<std::int32_t>(error_of(std::move(operation)).number);
}

}  // namespace kw::testing
