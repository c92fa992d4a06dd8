// The arguments of one late-bound call, by parameter.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "frame/description.h"
#include "kwutils/automation.h"

namespace kw::frame {

// Thrown for an argument of a kind that the parameter cannot take, or one that must not be left
// out.
struct BadArgument {
  HRESULT status;
  std::size_t position;  // of the parameter, from 0
};

class Arguments {
 public:
  static constexpr std::size_t kMost = 16;

  // Sorts what the caller sent, last argument first and named ones in front, by parameter. A status
  // other than kOk: too many arguments, a name given twice or unknown, a reference to nothing, or
  // one missing that is not optional; `bad_argument` then tells which, where that can be told.
  HRESULT sort(const Method& method, const DISPPARAMS& sent, std::uint32_t* bad_argument) noexcept;

  // The argument of a parameter, or null when it was left out.
  VARIANT* at(std::size_t position) const noexcept { return by_position_[position]; }
  const Parameter& parameter(std::size_t position) const noexcept {
    return method_->parameters[position];
  }
  // Where the argument of a parameter stood in what the caller sent.
  std::uint32_t sent_index(std::size_t position) const noexcept { return sent_index_[position]; }

 private:
  HRESULT place(std::size_t position, const DISPPARAMS& sent, std::uint32_t index) noexcept;

  const Method* method_ = nullptr;
  // Only as many as the method has parameters are ever set: clearing all would cost more than a
  // call.
  std::array<VARIANT*, kMost> by_position_;
  std::array<std::uint32_t, kMost> sent_index_;
};

}  // namespace kw::frame
