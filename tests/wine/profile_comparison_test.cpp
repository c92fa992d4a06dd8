// The library's engine against Wine's profile functions, on random files in 64-bit Wine.
//
// Each case has a file of its own. One run of a Windows program answers questions about the files
// and changes them, a second one, which remembers nothing of them, answers further questions. Then
// the engine does the same to the same files in memory.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "platform/memory_files.h"
#include "platform/temporary_folder.h"
#include "wine/profile_script.h"

namespace kw::wine {
namespace {

std::size_t case_count() { return reference::long_tests() ? 50'000 : 10'000; }

std::string file_name(std::size_t number) { return std::to_string(number) + ".ini"; }
std::string full_name(std::size_t number) { return ".\\" + file_name(number); }
std::u16string wide(const std::string& name) { return {name.begin(), name.end()}; }

// What Wine made of a case.
struct Outcome {
  std::vector<std::string> before;  // the answers, that to the change included
  std::string content;
  std::vector<std::string> after;
};

// The answers of the Windows program, run in that folder.
class Answers {
 public:
  Answers(const testing::TemporaryFolder& folder, const std::string& script) {
    folder.write("script", script);
    const std::string command = "cd '" + folder.path().string() +
                                "' && WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' "
                                "WINEPREFIX='" KW_WINE_PREFIX "' '" KW_WINE "' '" KW_PROFILE_DRIVER
                                "' < script > answers 2> messages";
    EXPECT_EQ(std::system(command.c_str()), 0) << folder.read("messages");
    lines_.open(folder / "answers");
  }

  std::vector<std::string> take(std::size_t count) {
    std::vector<std::string> answers;
    for (std::string line; answers.size() < count && std::getline(lines_, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      answers.push_back(line);
    }
    return answers;
  }

 private:
  std::ifstream lines_;
};

std::vector<Outcome> run_in_wine(const std::vector<Case>& cases) {
  const testing::TemporaryFolder folder;
  std::string first;
  std::string second;
  for (std::size_t i = 0; i < cases.size(); ++i) {
    folder.write(file_name(i), cases[i].content);
    for (const Command& command : cases[i].before) first += line_of(command, full_name(i));
    for (const Command& command : cases[i].after) second += line_of(command, full_name(i));
  }
  std::vector<Outcome> outcomes(cases.size());
  Answers before(folder, first);
  for (std::size_t i = 0; i < cases.size(); ++i) {
    outcomes[i].before = before.take(cases[i].before.size());
    outcomes[i].content = folder.read(file_name(i));
  }
  Answers after(folder, second);
  for (std::size_t i = 0; i < cases.size(); ++i) {
    outcomes[i].after = after.take(cases[i].after.size());
  }
  return outcomes;
}

std::vector<std::string> native_answers(const std::vector<Command>& commands) {
  std::vector<std::string> answers;
  for (const Command& command : commands) answers.push_back(native_answer(command, full_name(0)));
  return answers;
}

std::string described(const Case& one) {
  std::string text = ::testing::PrintToString(one.content) + "\n";
  for (const Command& command : one.before) text += ::testing::PrintToString(command) + "\n";
  for (const Command& command : one.after) text += ::testing::PrintToString(command) + "\n";
  return text;
}

// What Wine left alone the engine leaves alone; a file that Wine wrote is the engine's in Wine's
// form.
void compare(const Case& one, const Outcome& wine) {
  SCOPED_TRACE(described(one));
  platform::MemoryFiles files;
  const platform::ScopedFileService in_use(files);
  files.put(wide(full_name(0)), one.content);
  EXPECT_EQ(native_answers(one.before), wine.before);
  const std::string content = files.content(wide(full_name(0)));
  if (wine.content != one.content || content != one.content) {
    EXPECT_EQ(normalised(content), normalised(wine.content));
  }
  EXPECT_EQ(native_answers(one.after), wine.after);
}

TEST(ProfileComparison, TheEngineAgreesWithWine) {
  reference::Random random(20260);
  std::vector<Case> cases;
  for (std::size_t i = 0; i < case_count(); ++i) cases.push_back(random_case(random));
  const std::vector<Outcome> outcomes = run_in_wine(cases);
  std::size_t changed = 0;
  for (std::size_t i = 0; i < cases.size() && !HasFailure(); ++i) {
    compare(cases[i], outcomes[i]);
    if (outcomes[i].content != cases[i].content) ++changed;
  }
  if (HasFailure()) return;
  EXPECT_GT(changed, cases.size() / 3);
  std::cout << cases.size() << " files, " << changed << " of them changed\n";
}

}  // namespace
}  // namespace kw::wine
