#include "fault/fault_plan.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <iterator>
#include <stdexcept>

#include "kwutils/error.h"

namespace kw::fault {
namespace {

constexpr Fault kFaults[] = {
    {Kind::error, ENOSPC, Repeat::once},    {Kind::error, ENOSPC, Repeat::same_call},
    {Kind::error, ENOSPC, Repeat::always},  {Kind::error, EIO, Repeat::once},
    {Kind::error, EIO, Repeat::same_call},  {Kind::error, EIO, Repeat::always},
    {Kind::error, EACCES, Repeat::once},    {Kind::error, EACCES, Repeat::same_call},
    {Kind::error, EACCES, Repeat::always},  {Kind::error, EINTR, Repeat::once},
    {Kind::error, EINTR, Repeat::always},   {Kind::short_write, 0, Repeat::once},
    {Kind::short_write, 0, Repeat::always},
};

void run(const Operation& operation, Outcome& outcome) {
  try {
    outcome.reported = !operation();
  } catch (const Error& error) {
    outcome.reported = true;
    outcome.error = static_cast<std::int32_t>(error.number);
  }
}

// Exit codes of a child that was not killed.
constexpr int kSurvived = 42;
constexpr int kFinishedBefore = 43;

// In the child; never returns.
[[noreturn]] void run_to_death(const Fault& fault, const Operation& operation) {
  FaultyCalls calls(fault);
  const platform::ScopedSystemCalls in_use(calls);
  Outcome ignored;
  run(operation, ignored);
  _exit(calls.calls() < fault.call ? kFinishedBefore : kSurvived);
}

enum class Child { killed, survived, finished_before };

Child run_in_child(const Fault& fault, const Operation& operation) {
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("cannot fork");
  if (child == 0) run_to_death(fault, operation);
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) return Child::killed;
  if (WIFEXITED(status) && WEXITSTATUS(status) == kSurvived) return Child::survived;
  if (WIFEXITED(status) && WEXITSTATUS(status) == kFinishedBefore) return Child::finished_before;
  throw std::runtime_error("the operation crashed");
}

std::size_t kill_at_each_call(Kind kind, const Step& prepare, const Operation& operation,
                              const Check& check) {
  std::size_t killed = 0;
  for (Fault fault{kind, 0, Repeat::once, 1};; ++fault.call) {
    prepare();
    const Child child = run_in_child(fault, operation);
    if (child == Child::finished_before) return killed;
    if (child == Child::survived) continue;
    ++killed;
    check({fault, "", describe(fault, "?"), true, 0});
  }
}

}  // namespace

bool is_passing(const Fault& fault) {
  return fault.kind == Kind::short_write || fault.error == EINTR;
}

std::size_t count_calls(const Step& prepare, const Operation& operation) {
  prepare();
  FaultyCalls calls;
  const platform::ScopedSystemCalls in_use(calls);
  operation();
  return calls.calls();
}

bool inject(const Fault& fault, const Step& prepare, const Operation& operation,
            const Check& check) {
  prepare();
  FaultyCalls calls(fault);
  Outcome outcome{fault, "", "", false, 0};
  {
    const platform::ScopedSystemCalls in_use(calls);
    run(operation, outcome);
  }
  if (calls.calls() < fault.call) return false;
  if (calls.injected() == 0) return true;
  outcome.call = calls.first_hit();
  outcome.description = describe(fault, outcome.call);
  check(outcome);
  return true;
}

std::size_t inject_everywhere(const Step& prepare, const Operation& operation, const Check& check) {
  std::size_t runs = 0;
  const Check count_and_check = [&](const Outcome& outcome) {
    ++runs;
    check(outcome);
  };
  for (Fault fault : kFaults) {
    for (fault.call = 1; inject(fault, prepare, operation, count_and_check); ++fault.call) {
    }
  }
  return runs;
}

std::size_t kill_everywhere(const Step& prepare, const Operation& operation, const Check& check) {
  return kill_at_each_call(Kind::kill, prepare, operation, check) +
         kill_at_each_call(Kind::kill_midway, prepare, operation, check);
}

}  // namespace kw::fault
