// Replacements that never end. Each runs in a process of its own with little memory and little
// processor time, and the test looks at how that process ends: by itself, because its memory ran
// out, or by the signal for used-up time.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <new>
#include <stdexcept>
#include <string>

#include "text/replace_until_gone.h"

namespace {

// The sanitizers need address space without bounds, so the allocator is what is bounded; 0: it is
// not.
std::size_t g_largest_allocation = 0;

}  // namespace

void* operator new(std::size_t size) {
  const bool refused = g_largest_allocation != 0 && size > g_largest_allocation;
  void* const memory = refused ? nullptr : std::malloc(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace kw::text {
namespace {

enum Ending { kReturned = 1, kOutOfMemory, kOutOfTime };

void bound_this_process() {
  constexpr rlim_t kSeconds = 1;
  const rlimit time = {kSeconds, kSeconds + 1};
  setrlimit(RLIMIT_CPU, &time);
  const rlimit no_core_file = {0, 0};
  setrlimit(RLIMIT_CORE, &no_core_file);
  std::signal(SIGXCPU, [](int) { _exit(kOutOfTime); });
  g_largest_allocation = 2'000'000;
}

Ending replace(std::u16string_view text, std::u16string_view sought, std::u16string_view by) {
  try {
    replace_until_gone(text, sought, by);
    return kReturned;
  } catch (const std::bad_alloc&) {
    return kOutOfMemory;
  }
}

int ending_of(std::u16string_view text, std::u16string_view sought, std::u16string_view by) {
  const pid_t child = fork();
  if (child == 0) {
    bound_this_process();
    _exit(replace(text, sought, by));
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(EndlessReplacement, OfALetterByTwoGrowsUntilMemoryRunsOut) {
  EXPECT_EQ(ending_of(u"xay", u"a", u"aa"), kOutOfMemory);
}

TEST(EndlessReplacement, GrowsAlsoWhereTheOccurrenceArisesAtTheSeam) {
  EXPECT_EQ(ending_of(u"xaby", u"ab", u"aabb"), kOutOfMemory);
  EXPECT_EQ(ending_of(u"abc", u"ab", u"bbabaa"), kOutOfMemory);
}

TEST(EndlessReplacement, OfNothingBySomethingGrowsUntilMemoryRunsOut) {
  EXPECT_EQ(ending_of(u"x", u"", u"ab"), kOutOfMemory);
}

TEST(EndlessReplacement, OfALetterByItselfGoesOnForEver) {
  EXPECT_EQ(ending_of(u"xay", u"a", u"a"), kOutOfTime);
}

TEST(EndlessReplacement, OfNothingByNothingGoesOnForEver) {
  EXPECT_EQ(ending_of(u"x", u"", u""), kOutOfTime);
}

TEST(EndlessReplacement, ATextWithoutTheLetterIsReturned) {
  EXPECT_EQ(ending_of(u"xy", u"a", u"aa"), kReturned);
  EXPECT_EQ(ending_of(u"", u"", u""), kReturned);
}

}  // namespace
}  // namespace kw::text
