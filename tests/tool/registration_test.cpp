// The registry of the user who runs the tests must not be touched: a folder of their own stands in
// for it, which only a host can supply. So the tool runs inside this program here.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "kwutils/host.h"
#include "kwutils/string.h"
#include "platform/host_functions.h"
#include "tool/tool.h"

namespace kw::tool {
namespace {

namespace fs = std::filesystem;

class Registration : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "kwutils-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    library_ = folder_ / "served.so";
    std::ofstream(library_) << "any file will do";
    HostFunctions host;
    host.context = this;
    host.registry_folder = [](void* self) {
      const fs::path& folder = static_cast<Registration*>(self)->folder_;
      return String::from_utf8((folder / "registry").string()).release();
    };
    set_host(host);
  }
  void TearDown() override {
    set_host(HostFunctions());
    fs::remove_all(folder_);
  }

  ExitCode run(std::vector<std::string> words) {
    std::FILE* out = std::tmpfile();
    std::FILE* err = std::tmpfile();
    const ExitCode code = run_tool(std::move(words), out, err);
    answer_ = content(out);
    message_ = content(err);
    return code;
  }

  std::string registry() const {
    std::ifstream file(folder_ / "registry" / "classes.ini", std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }

  static std::string content(std::FILE* file) {
    std::string text(static_cast<std::size_t>(std::ftell(file)), '\0');
    std::rewind(file);
    text.resize(std::fread(text.data(), 1, text.size(), file));
    std::fclose(file);
    return text;
  }

  fs::path folder_;
  fs::path library_;
  std::string answer_;
  std::string message_;
};

TEST_F(Registration, EntersTheClassesWithTheirLibrary) {
  EXPECT_EQ(run({"register", "--library", library_.string()}), ExitCode::done);
  EXPECT_EQ(answer_, "registered " + library_.string() + "\n");
  EXPECT_NE(registry().find("kwUtils.clsParse"), std::string::npos);
  EXPECT_NE(registry().find(library_.string()), std::string::npos);
}

TEST_F(Registration, AnswersInJson) {
  EXPECT_EQ(run({"register", "--json", "--library", library_.string()}), ExitCode::done);
  EXPECT_EQ(answer_, "{\"done\": \"registered\", \"library\": \"" + library_.string() + "\"}\n");
}

TEST_F(Registration, RefusesALibraryThatIsMissing) {
  EXPECT_EQ(run({"register", "--library", (folder_ / "none.so").string()}), ExitCode::failed);
  EXPECT_EQ(message_, "kwutils: cannot register the library '" + (folder_ / "none.so").string() +
                          "': No such file or directory\n");
  EXPECT_EQ(registry(), "");
}

TEST_F(Registration, RemovesTheClasses) {
  run({"register", "--library", library_.string()});
  EXPECT_EQ(run({"unregister"}), ExitCode::done);
  EXPECT_EQ(answer_, "unregistered\n");
  EXPECT_EQ(registry(), "");
}

TEST_F(Registration, RemovesWhatIsNotThere) { EXPECT_EQ(run({"unregister"}), ExitCode::done); }

}  // namespace
}  // namespace kw::tool
