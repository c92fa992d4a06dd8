// Calls of every method with arguments that no sensible caller sends.
//
// Each call starts from harmless arguments, one for each parameter as its class describes it: empty
// texts, zeros, arrays without dimensions, unset collections. A test then spoils one of them. All
// calls go through the slots of the built library, in a folder of their own, with a host that
// answers every question with Abort.
#pragma once

#include <functional>
#include <vector>

#include "frame/class_table.h"
#include "runner/fake_host.h"
#include "runner/library.h"
#include "runner/slot_calls.h"
#include "runner/work_directory.h"

namespace kw::cases {

class BadCall {
 public:
  // Prepares a call of one method of a fresh object.
  BadCall(const Library& library, const SlotCall& call);
  BadCall(const BadCall&) = delete;
  BadCall& operator=(const BadCall&) = delete;
  ~BadCall();

  const frame::Method& method() const noexcept { return *method_; }
  // The argument of a parameter: a value of its kind.
  Variant& argument(std::size_t parameter) { return arguments_[parameter]; }
  void make_null(std::size_t parameter) noexcept { null_ = parameter; }
  void leave_out_result() noexcept { no_result_ = true; }
  HRESULT make();

 private:
  const SlotCall& call_;
  const frame::Method* method_;
  IUnknown* object_ = nullptr;
  std::vector<Variant> arguments_;
  std::size_t null_ = SIZE_MAX;
  bool no_result_ = false;
};

// The library under test, with its host in place and a fresh current directory while this lives.
class BadCaller {
 public:
  BadCaller();
  BadCaller(const BadCaller&) = delete;
  BadCaller& operator=(const BadCaller&) = delete;
  ~BadCaller();

  // Calls `spoil` for each parameter of each method that `chosen` names, makes the call, and hands
  // its status to `judge`.
  using Chosen = std::function<bool(const frame::Parameter&)>;
  using Spoil = std::function<void(BadCall&, std::size_t parameter)>;
  using Judge = std::function<void(const frame::Parameter&, HRESULT)>;
  // How many calls were made.
  int each(const Chosen& chosen, const Spoil& spoil, const Judge& judge) const;

  const Library& library() const noexcept;

 private:
  WorkDirectory directory_;
  FakeHost host_;
};

}  // namespace kw::cases
