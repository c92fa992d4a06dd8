// Many processes replace one file at once, each adding one to the number in it. Who is turned away
// tries again. No addition may be lost, and whoever reads meanwhile sees a whole file.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <iostream>
#include <string>

#include "fault/faulty_calls.h"
#include "kwutils/error.h"
#include "platform/files.h"
#include "platform/temporary_folder.h"

namespace kw::fault {
namespace {

using kw::testing::TemporaryFolder;
using platform::files;

constexpr int kProcesses = 8;
constexpr int kAdditions = 25;
constexpr std::size_t kSize = 20000;  // the number, filled up to this size

std::string content_of(int number) {
  std::string content = std::to_string(number) + ' ';
  content.resize(kSize - 1, '.');
  return content + '!';
}

int number_in(std::u16string_view name) {
  const auto file = files().open_input(name);
  std::string content;
  char block[4096];
  while (const std::size_t size = file->read(block, sizeof block)) content.append(block, size);
  return content == content_of(std::stoi(content)) ? std::stoi(content) : -1;
}

bool is_busy(const Error& error) {
  return error.number == ErrorNumber::permission_denied && error.system_code == EWOULDBLOCK;
}

std::unique_ptr<platform::ReplacementFile> take_name_in_the_end(const TemporaryFolder& folder) {
  for (;;) {
    try {
      return files().create_replacement(folder.name("a.tmp"), folder.name("a.ent"));
    } catch (const Error& error) {
      if (!is_busy(error)) throw;
      usleep(200);
    }
  }
}

// The number is read while the temporary file is held, as every rewrite does.
void add_one(const TemporaryFolder& folder) {
  const auto file = take_name_in_the_end(folder);
  file->write(content_of(number_in(folder.name("a.ent")) + 1));
  file->replace();
}

// Exit code 0 when all went well.
template <class Work>
pid_t start_process(Work work) {
  const pid_t child = fork();
  if (child != 0) return child;
  try {
    FaultyCalls without_flush;
    const platform::ScopedSystemCalls in_use(without_flush);
    work();
    _exit(0);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    _exit(1);
  }
}

bool succeeded(pid_t child) {
  int status = 0;
  return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(ConcurrentWriters, LoseNothing) {
  const TemporaryFolder folder;
  folder.write("a.ent", content_of(0));
  std::vector<pid_t> writers;
  for (int i = 0; i < kProcesses; ++i) {
    writers.push_back(start_process([&] {
      for (int k = 0; k < kAdditions; ++k) add_one(folder);
    }));
  }
  int last = 0;
  for (int reads = 0; reads < 200; ++reads) {
    const int number = number_in(folder.name("a.ent"));
    ASSERT_GE(number, last);
    last = number;
  }
  for (const pid_t writer : writers) EXPECT_TRUE(succeeded(writer));
  EXPECT_EQ(number_in(folder.name("a.ent")), kProcesses * kAdditions);
  EXPECT_EQ(folder.list(), std::vector<std::string>{"a.ent"});
}

// Writers that die while they write leave a temporary file, and a lock that dies with them.
TEST(ConcurrentWriters, LoseNothingWhileOthersAreKilled) {
  const TemporaryFolder folder;
  folder.write("a.ent", content_of(0));
  std::vector<pid_t> writers;
  for (int i = 0; i < 2; ++i) {
    writers.push_back(start_process([&] {
      for (int k = 0; k < kAdditions; ++k) add_one(folder);
    }));
  }
  for (int i = 0; i < kAdditions; ++i) {
    const pid_t victim = start_process([&] {
      const auto file = take_name_in_the_end(folder);
      file->write("not whole");
      raise(SIGKILL);
    });
    EXPECT_FALSE(succeeded(victim));
  }
  for (const pid_t writer : writers) EXPECT_TRUE(succeeded(writer));
  EXPECT_EQ(number_in(folder.name("a.ent")), 2 * kAdditions);
}

}  // namespace
}  // namespace kw::fault
