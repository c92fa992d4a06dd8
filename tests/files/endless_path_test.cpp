// A path that is never done with, in a process of its own with little processor time.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "kwutils/clsFileUtil.h"

namespace kw {
namespace {

constexpr int kReturned = 1;
constexpr int kOutOfTime = 2;

TEST(UnMakeAbsolute, GoesOnForEverWithAnEmptyBase) {
  const pid_t child = fork();
  if (child == 0) {
    const rlimit second = {1, 2};
    setrlimit(RLIMIT_CPU, &second);
    std::signal(SIGXCPU, [](int) { _exit(kOutOfTime); });
    clsFileUtil().UnMakeAbsolute(u"C:\\x", u"C:");
    _exit(kReturned);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), kOutOfTime);
}

}  // namespace
}  // namespace kw
