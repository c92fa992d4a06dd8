#include "platform/files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <thread>

#include "fault/faulty_calls.h"
#include "platform/memory_files.h"
#include "platform/temporary_folder.h"
#include "support/expect_error.h"

namespace kw::platform {
namespace {

using fault::Fault;
using fault::FaultyCalls;
using fault::Kind;
using fault::Repeat;
using kw::testing::error_of;
using kw::testing::number_of;
using kw::testing::TemporaryFolder;

namespace fs = std::filesystem;

std::string read_all(InputFile& file) {
  std::string content;
  char block[7];
  while (const std::size_t size = file.read(block, sizeof block)) content.append(block, size);
  return content;
}

std::string read_file(std::u16string_view name) { return read_all(*files().open_input(name)); }

// Stands in a folder of its own while a test lives.
class Files : public ::testing::Test {
 protected:
  Files() : before_(fs::current_path()) { fs::current_path(folder_.path()); }
  ~Files() override { fs::current_path(before_); }

  std::u16string windows_name(std::string_view file) const {
    std::u16string name = u"C:" + folder_.name(file);
    for (char16_t& c : name) {
      if (c == u'/') c = u'\\';
    }
    return name;
  }

  TemporaryFolder folder_;

 private:
  fs::path before_;
};

TEST_F(Files, ReadsAFileToItsEnd) {
  folder_.write("a.ent", "NODE id '1' node\r\n");
  EXPECT_EQ(read_file(u"a.ent"), "NODE id '1' node\r\n");
}

TEST_F(Files, ReadsOnFromAPosition) {
  folder_.write("a.ent", "0123456789");
  const auto file = files().open_input(u"a.ent");
  read_all(*file);
  file->seek(4);
  EXPECT_EQ(read_all(*file), "456789");
}

TEST_F(Files, BeyondTheEndThereIsNothing) {
  folder_.write("a.ent", "0123");
  const auto file = files().open_input(u"a.ent");
  file->seek(1000);
  EXPECT_EQ(read_all(*file), "");
}

TEST_F(Files, ANegativePositionIsRefused) {
  folder_.write("a.ent", "0123");
  const auto file = files().open_input(u"a.ent");
  EXPECT_EQ(number_of([&] { file->seek(-1); }), 63);
  EXPECT_EQ(read_all(*file), "0123");
}

TEST_F(Files, APipeHasNoPositions) {
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  const auto file = files().open_input(u"pipe");
  EXPECT_EQ(number_of([&] { file->seek(0); }), 63);
  EXPECT_EQ(file->size_hint(), 0);
}

TEST_F(Files, APipeThatNobodyWritesIsEmpty) {
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(read_file(u"pipe"), "");
}

TEST_F(Files, AReaderOfAPipeWaitsForItsWriter) {
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  const int writer = SystemCalls().open((folder_ / "pipe").c_str(), O_RDWR, 0);
  const auto file = files().open_input(u"pipe");
  std::thread late([writer] {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_EQ(SystemCalls().write(writer, "abc", 3), 3);
    SystemCalls().close(writer);
  });
  EXPECT_EQ(read_all(*file), "abc");
  late.join();
}

TEST_F(Files, TellsTheSizeOfAFile) {
  folder_.write("a.ent", "0123456789");
  EXPECT_EQ(files().open_input(u"a.ent")->size_hint(), 10);
}

TEST_F(Files, AnInterruptedReadGoesOn) {
  folder_.write("a.ent", "0123456789");
  for (std::size_t call = 1; call <= 6; ++call) {
    FaultyCalls calls({Kind::error, EINTR, Repeat::always, call});
    const ScopedSystemCalls in_use(calls);
    EXPECT_EQ(read_file(u"a.ent"), "0123456789") << call;
  }
}

TEST_F(Files, AFailedReadIsReported) {
  folder_.write("a.ent", "0123456789");
  const auto file = files().open_input(u"a.ent");
  FaultyCalls calls({Kind::error, EIO, Repeat::once, 1});
  const ScopedSystemCalls in_use(calls);
  const Error error = error_of([&] { read_all(*file); });
  EXPECT_EQ(error.number, ErrorNumber::io_error);
  EXPECT_EQ(error.system_code, EIO);
  EXPECT_EQ(error.text(), "Device I/O error: 'a.ent'");
}

TEST_F(Files, WritesWhatIsGivenInAnyPieces) {
  std::string expected;
  const auto file = files().create_output(u"out.txt");
  for (std::size_t size : {0u, 1u, 5u, 131071u, 131072u, 131073u, 400000u, 3u}) {
    const std::string piece(size, static_cast<char>('a' + expected.size() % 26));
    expected += piece;
    file->write(piece);
  }
  file->close();
  EXPECT_EQ(folder_.read("out.txt"), expected);
}

TEST_F(Files, AnOutputEmptiesTheFileThatIsThere) {
  folder_.write("out.txt", "old and long");
  const auto file = files().create_output(u"out.txt");
  file->write("new");
  file->close();
  file->close();
  EXPECT_EQ(folder_.read("out.txt"), "new");
}

TEST_F(Files, AnOutputThatIsDroppedIsWrittenAllTheSame) {
  files().create_output(u"out.txt")->write("kept");
  EXPECT_EQ(folder_.read("out.txt"), "kept");
}

TEST_F(Files, AFullDiskIsReportedAndNotForgotten) {
  const auto file = files().create_output(u"/dev/full");
  file->write("x");
  const Error error = error_of([&] { file->close(); });
  EXPECT_EQ(error.number, ErrorNumber::disk_full);
  EXPECT_EQ(error.system_code, ENOSPC);
  EXPECT_EQ(number_of([&] { file->close(); }), 61);
  EXPECT_EQ(number_of([&] { file->write("y"); }), 61);
}

TEST_F(Files, AMissingFileIsNotAMissingFolder) {
  EXPECT_EQ(number_of([] { files().open_input(u"gone.ent"); }), 53);
  EXPECT_EQ(number_of([] { files().open_input(u"gone/a.ent"); }), 76);
  EXPECT_EQ(number_of([] { files().create_output(u"gone/a.ent"); }), 76);
  EXPECT_EQ(number_of([] { files().remove(u"gone.ent"); }), 53);
  EXPECT_EQ(number_of([] { files().remove(u"gone/a.ent"); }), 76);
  EXPECT_EQ(number_of([] { files().check_attributes(u"gone.ent"); }), 53);
  EXPECT_EQ(number_of([] { files().check_attributes(u"gone/a.ent"); }), 76);
}

TEST_F(Files, AFileIsNoFolder) {
  folder_.write("a.ent", "");
  EXPECT_EQ(number_of([] { files().open_input(u"a.ent/b.ent"); }), 76);
  EXPECT_FALSE(files().exists(u"a.ent/b.ent"));
}

TEST_F(Files, AFolderIsNoFile) {
  fs::create_directory("sub");
  EXPECT_EQ(number_of([] { files().open_input(u"sub"); }), 70);
  EXPECT_EQ(number_of([] { files().create_output(u"sub"); }), 70);
  EXPECT_EQ(number_of([] { files().remove(u"sub"); }), 70);
  EXPECT_TRUE(files().exists(u"sub"));
  files().check_attributes(u"sub");
}

TEST_F(Files, NoPermissionIsItsOwnError) {
  folder_.write("a.ent", "x");
  FaultyCalls calls({Kind::error, EACCES, Repeat::always, 1});
  const ScopedSystemCalls in_use(calls);
  EXPECT_EQ(number_of([] { files().open_input(u"a.ent"); }), 70);
  EXPECT_EQ(number_of([] { files().check_attributes(u"a.ent"); }), 70);
}

TEST_F(Files, AFileThatCannotBeSeenIsNotCalledMissing) {
  folder_.write("a.ent", "x");
  FaultyCalls calls({Kind::error, EIO, Repeat::always, 1});
  const ScopedSystemCalls in_use(calls);
  EXPECT_EQ(number_of([] { files().exists(u"a.ent"); }), 57);
  EXPECT_EQ(number_of([] { files().exists(u"C:\\a.ent"); }), 57);
}

TEST_F(Files, ImpossibleNamesAreBadNames) {
  const std::u16string with_nul(u"a\0b", 3);
  const std::u16string too_long(5000, u'x');
  for (const std::u16string& name : {std::u16string(), with_nul, too_long}) {
    EXPECT_EQ(number_of([&] { files().open_input(name); }), 52);
    EXPECT_EQ(number_of([&] { files().create_output(name); }), 52);
    EXPECT_EQ(number_of([&] { files().create_replacement(name, u"a.ent"); }), 52);
    EXPECT_EQ(number_of([&] { files().create_replacement(u"a.tmp", name); }), 52);
    EXPECT_EQ(number_of([&] { files().check_attributes(name); }), 52);
    EXPECT_EQ(number_of([&] { files().remove(name); }), 52);
    EXPECT_FALSE(files().exists(name));
  }
  EXPECT_TRUE(folder_.list().empty());
}

TEST_F(Files, RemovesAFile) {
  folder_.write("a.ent", "x");
  EXPECT_TRUE(files().exists(u"a.ent"));
  files().remove(u"a.ent");
  EXPECT_FALSE(files().exists(u"a.ent"));
}

TEST_F(Files, WindowsTextNamesTheSameFile) {
  folder_.write("a.ent", "x");
  EXPECT_EQ(read_file(windows_name("a.ent")), "x");
  std::u16string small = windows_name("a.ent");
  small[0] = u'c';
  EXPECT_EQ(read_file(small), "x");
  EXPECT_TRUE(files().exists(u"C:\\"));
  EXPECT_TRUE(files().exists(u"C:"));
}

TEST_F(Files, ADriveWithoutAFolderMeansTheCurrentOne) {
  fs::create_directory("sub");
  folder_.write("sub/a.ent", "x");
  EXPECT_EQ(read_file(u"C:sub\\a.ent"), "x");
  EXPECT_EQ(read_file(u"sub\\a.ent"), "x");
  EXPECT_EQ(read_file(u"C:sub/a.ent"), "x");
}

TEST_F(Files, ANameThatExistsAsGivenIsUsedAsGiven) {
  fs::create_directory("sub");
  folder_.write("sub\\a.ent", "as given");
  folder_.write("sub/a.ent", "rewritten");
  folder_.write("D:x", "no drive");
  EXPECT_EQ(read_file(u"sub\\a.ent"), "as given");
  EXPECT_EQ(read_file(u"D:x"), "no drive");
}

TEST_F(Files, NewFilesOfWindowsNamesLieInTheirFolder) {
  files().create_output(windows_name("new.txt"))->close();
  EXPECT_EQ(folder_.list(), std::vector<std::string>{"new.txt"});
}

TEST_F(Files, OtherDrivesHaveNoFiles) {
  EXPECT_EQ(number_of([] { files().open_input(u"D:\\a.ent"); }), 76);
  EXPECT_EQ(number_of([] { files().create_output(u"z:a.ent"); }), 76);
  EXPECT_EQ(number_of([] { files().create_replacement(u"D:\\a.tmp", u"a.ent"); }), 76);
  EXPECT_EQ(number_of([] { files().check_attributes(u"D:"); }), 76);
  EXPECT_EQ(number_of([] { files().remove(u"D:\\a.ent"); }), 76);
  EXPECT_FALSE(files().exists(u"D:\\"));
}

TEST_F(Files, NamesMayHoldEveryCharacter) {
  for (const std::u16string& name :
       {std::u16string(u"Malm\u00F6 \u0416 \u4E2D \U0001F600.ent"),
        std::u16string(u"a\nb\t'\"*?<>|.ent"), std::u16string(1, char16_t{0xD800}) + u".ent"}) {
    const auto file = files().create_output(name);
    file->write("x");
    file->close();
    EXPECT_TRUE(files().exists(name));
    EXPECT_EQ(read_file(name), "x");
  }
}

TEST_F(Files, AnotherServiceStandsInWhileItIsInScope) {
  MemoryFiles memory;
  memory.put(u"a.ent", "in memory");
  {
    const ScopedFileService in_use(memory);
    EXPECT_EQ(read_file(u"a.ent"), "in memory");
  }
  EXPECT_FALSE(files().exists(u"a.ent"));
}

}  // namespace
}  // namespace kw::platform
