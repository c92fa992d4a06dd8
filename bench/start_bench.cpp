// How long the tool takes from its start to its end, beside what it is allowed to.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <vector>

#include "entity_data.h"
#include "entity_text.h"

namespace kw::bench {
namespace {

using Seconds = std::chrono::duration<double>;

// Where the answers go.
class Nowhere {
 public:
  Nowhere() {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  }
  ~Nowhere() { posix_spawn_file_actions_destroy(&actions_); }
  Nowhere(const Nowhere&) = delete;
  Nowhere& operator=(const Nowhere&) = delete;

  const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

// Runs a program to its end. False when it cannot be run or does not end with status 0.
bool run(std::vector<std::string> words) {
  const Nowhere nowhere;
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  pid_t process = 0;
  if (posix_spawn(&process, arguments[0], nowhere.get(), nullptr, arguments.data(), environ) != 0)
    return false;
  int status = 0;
  return waitpid(process, &status, 0) == process && status == 0;
}

void measure(benchmark::State& state, const std::vector<std::string>& words) {
  for (auto _ : state)
    if (!run(words)) return state.SkipWithError("the program failed");
}

void start_true(benchmark::State& state) { measure(state, {"/bin/true"}); }

// One and a half times /bin/true, and 3 ms.
void start_allowed(benchmark::State& state) {
  constexpr double kFactor = 1.5;
  constexpr double kExtra = 0.003;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    if (!run({"/bin/true"})) return state.SkipWithError("/bin/true failed");
    const Seconds taken = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(kFactor * taken.count() + kExtra);
  }
}

std::vector<std::string> tool(const std::string& command, const std::vector<std::string>& rest) {
  std::vector<std::string> words = {KW_TOOL, command, entity_file(kSmall).path.string()};
  words.insert(words.end(), rest.begin(), rest.end());
  return words;
}

void start_get(benchmark::State& state) {
  measure(state, tool("get", {std::string(entity_type(kSmall)), entity_id(kSmall)}));
}

void start_list(benchmark::State& state) { measure(state, tool("list", {})); }

BENCHMARK(start_true)->Name("Start_true")->UseRealTime();
BENCHMARK(start_allowed)->Name("Start_allowed")->UseManualTime();
BENCHMARK(start_get)->Name("Start_get")->UseRealTime();
BENCHMARK(start_list)->Name("Start_list")->UseRealTime();

}  // namespace
}  // namespace kw::bench
