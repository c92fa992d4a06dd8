// The profile service on real files.
#include "platform/profile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <thread>

#include "kwutils/host.h"
#include "platform/temporary_folder.h"

namespace kw::platform::profile {
namespace {

using namespace std::string_literals;

// Runs in a folder of its own, which is the current directory meanwhile.
class Profile : public ::testing::Test {
 protected:
  Profile() : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder_.path());
  }
  ~Profile() override {
    std::filesystem::current_path(before_);
    set_host(HostFunctions());
  }

  static std::string get(std::string_view file, std::string_view fallback = "(default)") {
    return get_string("s", "k", fallback, 1024, file);
  }
  static bool set(std::string_view file, std::string_view value = "v") {
    return write_string("s", "k", value, file);
  }
  std::string path(std::string_view file) const { return (folder_ / file).string(); }

  testing::TemporaryFolder folder_;

 private:
  std::filesystem::path before_;
};

TEST_F(Profile, ReadsWhatItWrote) {
  EXPECT_TRUE(set(".\\a.ini", "\" x \""));
  EXPECT_EQ(folder_.read("a.ini"), "[s]\r\nk=\" x \"\r\n");
  EXPECT_EQ(get(".\\a.ini"), " x ");
}

TEST_F(Profile, FallsBackForWhateverIsMissing) {
  folder_.write("a.ini", "[s]\r\nj=1\r\nk\r\n[t]\r\nk=2\r\n");
  EXPECT_EQ(get(".\\a.ini"), "(default)");
  EXPECT_EQ(get(".\\none.ini"), "(default)");
  EXPECT_EQ(get(".\\none\\a.ini"), "(default)");
  EXPECT_EQ(get(".\\"), "(default)");
  EXPECT_EQ(get("D:\\a.ini"), "(default)");
  EXPECT_EQ(get(""), "(default)");
}

TEST_F(Profile, DefaultsLoseBlanksAtTheEndAndQuotes) {
  EXPECT_EQ(get(".\\none.ini", " \"a\" "), " \"a\"");
  EXPECT_EQ(get(".\\none.ini", "'a'  "), "a");
  EXPECT_EQ(get(".\\none.ini", "  "), " ");
  EXPECT_EQ(get(".\\none.ini", "a\0b"s), "a");
}

TEST_F(Profile, EmptyValuesAreGivenAsTheyAre) {
  folder_.write("a.ini", "[s]\r\nk=\r\n");
  EXPECT_EQ(get(".\\a.ini"), "");
}

TEST_F(Profile, CutsValuesToTheBuffer) {
  folder_.write("a.ini", "[s]\r\nk=" + std::string(70000, 'x') + "\r\nj=1\r\n");
  EXPECT_EQ(get(".\\a.ini"), std::string(1023, 'x'));
  EXPECT_EQ(get_string("s", "j", "", 1024, ".\\a.ini"), "1");
}

TEST_F(Profile, FindsEntriesBeyondTheFirstBlock) {
  std::string content = "[a]\r\n";
  for (int i = 0; i < 20000; ++i) content += "key" + std::to_string(i) + "=x\r\n";
  folder_.write("a.ini", content + "[s]\r\nk=v");
  EXPECT_EQ(get(".\\a.ini"), "v");
  EXPECT_EQ(get_string("a", "key19999", "", 1024, ".\\a.ini"), "x");
}

TEST_F(Profile, SeesChangesByOthersAtOnce) {
  folder_.write("a.ini", "[s]\r\nk=1\r\n");
  EXPECT_EQ(get(".\\a.ini"), "1");
  folder_.write("a.ini", "[s]\r\nk=2\r\n");
  EXPECT_EQ(get(".\\a.ini"), "2");
}

TEST_F(Profile, NulEndsEveryText) {
  EXPECT_TRUE(write_string("s\0x"s, "k\0x"s, "v\0x"s, ".\\a.ini\0x"s));
  EXPECT_EQ(folder_.read("a.ini"), "[s]\r\nk=v\r\n");
  EXPECT_EQ(get_string("s\0y"s, "k\0y"s, "", 1024, ".\\a.ini\0y"s), "v");
}

TEST_F(Profile, ReadsIntegersThroughAShortBuffer) {
  folder_.write("a.ini", "[s]\r\na=12abc\r\nb=\r\nc\r\nd=\"-7\"\r\ne=0\r\nf=" +
                             std::string(2000, '0') + "5\r\n");
  EXPECT_EQ(get_int("s", "a", 77, ".\\a.ini"), 12);
  EXPECT_EQ(get_int("s", "b", 77, ".\\a.ini"), 77);
  EXPECT_EQ(get_int("s", "c", 77, ".\\a.ini"), 77);
  EXPECT_EQ(get_int("s", "d", 77, ".\\a.ini"), -7);
  EXPECT_EQ(get_int("s", "e", 77, ".\\a.ini"), 0);
  EXPECT_EQ(get_int("s", "f", 77, ".\\a.ini"), 0);
  EXPECT_EQ(get_int("s", "none", -3, ".\\a.ini"), -3);
}

TEST_F(Profile, Utf16FilesStayUtf16) {
  folder_.write("a.ini", "\xFF\xFE[\0s\0]\0\n\0k\0=\0\xAC\x20\n\0Z"s);
  EXPECT_EQ(get(".\\a.ini"), "\x80");
  EXPECT_TRUE(set(".\\a.ini", "\x80\xE9"));
  EXPECT_EQ(folder_.read("a.ini"), "\xFF\xFE[\0s\0]\0\n\0k\0=\0\xAC\x20\xE9\0\r\0\n\0Z"s);
  EXPECT_TRUE(write_string("s", "k", std::nullopt, ".\\a.ini"));
  EXPECT_EQ(folder_.read("a.ini"), "\xFF\xFE[\0s\0]\0\n\0Z"s);
}

TEST_F(Profile, RemovingLeavesNothingBehindInAMissingFile) {
  EXPECT_TRUE(write_string("s", "k", std::nullopt, ".\\a.ini"));
  EXPECT_TRUE(folder_.list().empty());
}

TEST_F(Profile, WritingTheSameValueLeavesTheFileAlone) {
  folder_.write("a.ini", "[s]\nk = v \n");
  const auto inode = [&] {
    struct stat status {};
    stat(path("a.ini").c_str(), &status);
    return status.st_ino;
  };
  const auto before = inode();
  EXPECT_TRUE(set(".\\a.ini", "v"));
  EXPECT_TRUE(write_string("s", "none", std::nullopt, ".\\a.ini"));
  EXPECT_EQ(inode(), before);
}

TEST_F(Profile, KeepsThePermissionsOfTheFile) {
  using std::filesystem::perms;
  folder_.write("a.ini", "");
  std::filesystem::permissions(folder_ / "a.ini", perms::owner_read | perms::owner_write);
  EXPECT_TRUE(set(".\\a.ini"));
  EXPECT_EQ(std::filesystem::status(folder_ / "a.ini").permissions(),
            perms::owner_read | perms::owner_write);
  EXPECT_EQ(folder_.list(), std::vector<std::string>{"a.ini"});
}

TEST_F(Profile, CannotWriteWhereThereIsNoFolderOrNoFile) {
  std::filesystem::create_directory(folder_ / "d");
  for (const char* name :
       {".\\none\\a.ini", ".\\d", ".\\", ".\\a*.ini", ".\\a?.ini", "D:\\a.ini"}) {
    EXPECT_FALSE(set(name)) << name;
    EXPECT_EQ(get(name), "(default)") << name;
  }
  EXPECT_EQ(folder_.list(), std::vector<std::string>{"d"});
}

// Root may write everything: a child process gives its rights up first.
TEST_F(Profile, CannotWriteAProtectedFile) {
  if (getuid() == 0) std::filesystem::permissions(folder_.path(), std::filesystem::perms::all);
  folder_.write("a.ini", "[s]\r\nk=1\r\n");
  std::filesystem::permissions(folder_ / "a.ini", std::filesystem::perms(0444));
  const pid_t child = fork();
  if (child == 0) {
    if (getuid() == 0 && setuid(65534) != 0) _exit(2);
    _exit(set(".\\a.ini") ? 1 : 0);
  }
  int status = -1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(folder_.read("a.ini"), "[s]\r\nk=1\r\n");
}

TEST_F(Profile, NamesMayBeNativeOrWindowsText) {
  folder_.write("a.ini", "[s]\r\nk=v\r\n");
  std::string windows = "C:" + path("a.ini");
  for (char& c : windows) c = c == '/' ? '\\' : c;
  for (const std::string& name : {windows, path("a.ini"), "./a.ini"s, "C:a.ini"s}) {
    EXPECT_EQ(get(name), "v") << name;
  }
}

TEST_F(Profile, ASlashAfterTheCurrentFolderBeginsANativeAbsoluteName) {
  folder_.write("a.ini", "[s]\r\nk=v\r\n");
  EXPECT_EQ(get(".\\" + path("a.ini")), "v");
}

TEST_F(Profile, CaseOfTheLastPartDoesNotMatter) {
  folder_.write("App.ini", "[s]\r\nk=v\r\n");
  EXPECT_EQ(get(".\\aPP.INI"), "v");
  EXPECT_TRUE(set(".\\APP.ini", "w"));
  EXPECT_EQ(folder_.list(), std::vector<std::string>{"App.ini"});
  EXPECT_EQ(folder_.read("App.ini"), "[s]\r\nk=w\r\n");
  EXPECT_EQ(stored_name(u".\\APP.ini"), u".\\App.ini");
}

TEST_F(Profile, AnExactNameComesFirst) {
  folder_.write("APP.INI", "[s]\r\nk=1\r\n");
  folder_.write("app.ini", "[s]\r\nk=2\r\n");
  folder_.write("App.ini", "[s]\r\nk=3\r\n");
  EXPECT_EQ(get(".\\app.ini"), "2");
  EXPECT_EQ(get(".\\aPP.ini"), "1");
}

TEST_F(Profile, CaseOfFoldersMatters) {
  std::filesystem::create_directory(folder_ / "cfg");
  folder_.write("cfg/app.ini", "[s]\r\nk=v\r\n");
  EXPECT_EQ(get("cfg\\APP.ini"), "v");
  EXPECT_EQ(get("CFG\\app.ini"), "(default)");
}

TEST_F(Profile, BareNamesLieInTheSystemsDirectory) {
  EXPECT_EQ(windows_directory(), u"/etc");
  // Every distribution describes itself in /etc/os-release.
  EXPECT_NE(get_string("", "name", "(default)", 1024, "OS-Release"), "(default)");
}

TEST_F(Profile, TheHostMayMoveTheSystemsDirectory) {
  std::filesystem::create_directory(folder_ / "win");
  folder_.write("win/app.ini", "[s]\r\nk=v\r\n");
  static std::u16string directory;
  directory = folder_.name("win");
  HostFunctions host;
  host.windows_directory = [](void*) KW_STDCALL {
    return SysAllocStringLen(directory.data(), static_cast<unsigned>(directory.size()));
  };
  set_host(host);
  EXPECT_EQ(get("App.INI"), "v");
  EXPECT_TRUE(set("new.ini"));
  EXPECT_EQ(folder_.read("win/new.ini"), "[s]\r\nk=v\r\n");
  EXPECT_EQ(get(".\\app.ini"), "(default)");
}

TEST_F(Profile, WritersAtTheSameTimeLoseNothing) {
  constexpr int kWriters = 4;
  constexpr int kKeys = 10;
  std::vector<std::thread> writers;
  for (int writer = 0; writer < kWriters; ++writer) {
    writers.emplace_back([writer] {
      for (int key = 0; key < kKeys; ++key) {
        const std::string name = std::to_string(writer) + "-" + std::to_string(key);
        EXPECT_TRUE(write_string("s", name, "v", ".\\a.ini"));
      }
    });
  }
  for (std::thread& writer : writers) writer.join();
  for (int i = 0; i < kWriters * kKeys; ++i) {
    const std::string name = std::to_string(i / kKeys) + "-" + std::to_string(i % kKeys);
    EXPECT_EQ(get_string("s", name, "", 1024, ".\\a.ini"), "v") << name;
  }
  EXPECT_EQ(folder_.list(), std::vector<std::string>{"a.ini"});
}

}  // namespace
}  // namespace kw::platform::profile
