// Makes every system call of an operation go wrong, one run for each call and each kind of fault,
// and lets the test look at what is left after each run.
//
//   const std::size_t faults = inject_everywhere(
//       [&] { folder.clear(); folder.write("a.ent", kOld); },         // the same start for each
//       run
//       [&] { object.WriteEntity(name, ...); return true; },          // false or a throw: reported
//       [&](const Outcome& run) {
//         SCOPED_TRACE(run.description);
//         EXPECT_TRUE(folder.read("a.ent") == kNew || run.reported);
//       });
#pragma once

#include <functional>
#include <string>

#include "fault/faulty_calls.h"

namespace kw::fault {

// What one run came to.
struct Outcome {
  Fault fault;
  std::string call;  // the name of the first call that the fault hit
  std::string description;
  bool reported = false;   // the operation threw a kw::Error or returned false
  std::int32_t error = 0;  // the number of the Error that it threw
};

// Whether an operation goes on after the fault as if nothing had been: it was interrupted, or only
// a part was written.
bool is_passing(const Fault& fault);

using Step = std::function<void()>;
using Operation = std::function<bool()>;
using Check = std::function<void(const Outcome&)>;

// The number of system calls that the operation makes when nothing fails.
std::size_t count_calls(const Step& prepare, const Operation& operation);

// One run with that fault. False where the operation makes fewer calls; `check` is not called then.
bool inject(const Fault& fault, const Step& prepare, const Operation& operation,
            const Check& check);

// Every call fails with "no room", "I/O error" and "no permission", once, from then on and at
// calls of its name from then on; is interrupted, once and a hundred times; every write is short,
// once and from then on. Returns the number of runs in which something went wrong.
std::size_t inject_everywhere(const Step& prepare, const Operation& operation, const Check& check);

// Runs the operation in a child process that is killed before its first, second ... system call,
// and in the middle of each of its writes. Returns the number of children killed. The process that
// calls it should have one thread.
std::size_t kill_everywhere(const Step& prepare, const Operation& operation, const Check& check);

}  // namespace kw::fault
