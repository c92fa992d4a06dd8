// What a replacement has to do with this system: links, pipes, permissions, owners, volumes.
#include <sys/stat.h>
#include <unistd.h>

#include "fault/faulty_calls.h"
#include "fault/two_volumes.h"
#include "platform/replacements.h"
#include "support/expect_error.h"

namespace kw::platform {
namespace {

using fault::FaultyCalls;
using fault::Kind;
using fault::Repeat;
using fault::TwoVolumes;
using kw::testing::error_of;
using kw::testing::number_of;
using kw::testing::TemporaryFolder;

namespace fs = std::filesystem;

// A file system that lets nobody give files away.
class NoGivingAway : public SystemCalls {
 public:
  int fchown(int, uid_t, gid_t) override {
    errno = EPERM;
    return -1;
  }
};

// Keeps the order of the calls that make a replacement safe.
class Recorder : public SystemCalls {
 public:
  ssize_t write(int file, const void* bytes, std::size_t size) override {
    order += "write ";
    return SystemCalls::write(file, bytes, size);
  }
  int fchmod(int file, mode_t mode) override {
    order += "permissions ";
    return SystemCalls::fchmod(file, mode);
  }
  int fsync(int file) override {
    order += "flush ";
    return SystemCalls::fsync(file);
  }
  int close(int file) override {
    order += "close ";
    return SystemCalls::close(file);
  }
  int rename(const char* from, const char* to) override {
    order += "rename ";
    return SystemCalls::rename(from, to);
  }

  std::string order;
};

class ReplacementFileTest : public kw::testing::Replacements {
 protected:
  mode_t mode_of(std::string_view file) const {
    struct stat status {};
    EXPECT_EQ(::stat((folder_ / file).c_str(), &status), 0);
    return status.st_mode & 07777;
  }
};

TEST_F(ReplacementFileTest, TheOldFileStaysUntilTheReplacement) {
  folder_.write("a.ent", "old");
  const auto file = start();
  file->write(std::string(1000000, 'x'));
  EXPECT_EQ(folder_.read("a.ent"), "old");
  EXPECT_EQ(folder_.list(), (Names{"a.ent", "a.tmp"}));
}

// Closing may report a failed write, so it comes before the renaming; the last one ends the lock.
TEST_F(ReplacementFileTest, TheContentIsOnTheDiskAndClosedBeforeItIsRenamed) {
  folder_.write("a.ent", "old");
  Recorder calls;
  const ScopedSystemCalls in_use(calls);
  replace_with("new");
  EXPECT_EQ(calls.order, "write permissions flush close rename close ");
}

TEST_F(ReplacementFileTest, AReaderKeepsTheOldContent) {
  folder_.write("a.ent", "old");
  const auto reader = files().open_input(folder_.name("a.ent"));
  replace_with("new");
  char text[8];
  EXPECT_EQ(std::string(text, reader->read(text, sizeof text)), "old");
}

TEST_F(ReplacementFileTest, AFurtherNameOfAnEarlierTemporaryFileKeepsItsContent) {
  folder_.write("precious", "content");
  fs::create_hard_link(folder_ / "precious", folder_ / "a.tmp");
  replace_with("new");
  EXPECT_EQ(folder_.read("precious"), "content");
  EXPECT_EQ(folder_.read("a.ent"), "new");
}

TEST_F(ReplacementFileTest, ALinkUnderTheTemporaryNameIsRefused) {
  folder_.write("precious", "content");
  folder_.write("a.ent", "old");
  fs::create_symlink("precious", folder_ / "a.tmp");
  EXPECT_EQ(number_of([&] { start(); }), 70);
  EXPECT_EQ(folder_.read("precious"), "content");
  EXPECT_EQ(folder_.list(), (Names{"a.ent", "a.tmp", "precious"}));
}

TEST_F(ReplacementFileTest, APipeUnderTheTemporaryNameIsRefused) {
  ASSERT_EQ(mkfifo((folder_ / "a.tmp").c_str(), 0600), 0);
  EXPECT_EQ(number_of([&] { start(); }), 70);
  EXPECT_EQ(folder_.list(), Names{"a.tmp"});
}

TEST_F(ReplacementFileTest, APipeIsNotReplaced) {
  ASSERT_EQ(mkfifo((folder_ / "a.ent").c_str(), 0600), 0);
  EXPECT_EQ(number_of([&] { start(); }), 70);
  EXPECT_EQ(folder_.list(), Names{"a.ent"});
}

TEST_F(ReplacementFileTest, ASecondWriterDoesNotWait) {
  const auto first = start();
  EXPECT_EQ(error_of([&] { start(); }).system_code, EWOULDBLOCK);
}

TEST_F(ReplacementFileTest, ALinkToItsOwnTemporaryFileIsNoTarget) {
  folder_.write("a.ent", "old");
  fs::create_symlink("a.ent", folder_ / "link");
  EXPECT_EQ(
      number_of([&] { files().create_replacement(folder_.name("a.ent"), folder_.name("link")); }),
      5);
  EXPECT_EQ(folder_.read("a.ent"), "old");
}

TEST_F(ReplacementFileTest, PermissionsAreThoseOfTheReplacedFile) {
  for (const mode_t mode : {0600u, 0644u, 0666u, 0444u, 0751u}) {
    folder_.write("a.ent", "old");
    ASSERT_EQ(chmod((folder_ / "a.ent").c_str(), mode), 0);
    replace_with("new");
    EXPECT_EQ(mode_of("a.ent"), mode);
    fs::remove(folder_ / "a.ent");
  }
}

TEST_F(ReplacementFileTest, WhatWasPrivateIsPrivateWhileItIsWritten) {
  folder_.write("a.ent", "old");
  ASSERT_EQ(chmod((folder_ / "a.ent").c_str(), 0600), 0);
  const auto file = start();
  EXPECT_EQ(mode_of("a.tmp"), 0600u);
}

TEST_F(ReplacementFileTest, ANewFileHasTheUsualPermissions) {
  folder_.write("a.tmp", "left behind");
  ASSERT_EQ(chmod((folder_ / "a.tmp").c_str(), 0400), 0);
  folder_.write("usual", "");
  replace_with("new");
  EXPECT_EQ(mode_of("a.ent"), mode_of("usual"));
}

TEST_F(ReplacementFileTest, TheOwnerStaysWhereTheSystemLetsUs) {
  folder_.write("a.ent", "old");
  struct stat before {};
  const int changed = chown((folder_ / "a.ent").c_str(), 12345, 54321);
  ASSERT_EQ(::stat((folder_ / "a.ent").c_str(), &before), 0);
  replace_with("new");
  struct stat after {};
  ASSERT_EQ(::stat((folder_ / "a.ent").c_str(), &after), 0);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_gid, before.st_gid);
  EXPECT_EQ(after.st_uid == 12345, changed == 0);
}

// Only a privileged process can make the start of this case.
TEST_F(ReplacementFileTest, TheRightToActAsTheOwnerDoesNotPassToAnotherOne) {
  folder_.write("a.ent", "old");
  if (chown((folder_ / "a.ent").c_str(), 12345, 54321) != 0) return;
  ASSERT_EQ(chmod((folder_ / "a.ent").c_str(), 06755), 0);
  NoGivingAway calls;
  const ScopedSystemCalls in_use(calls);
  replace_with("new");
  EXPECT_EQ(folder_.read("a.ent"), "new");
  EXPECT_EQ(mode_of("a.ent"), 0755u);
}

TEST_F(ReplacementFileTest, ALinkStaysAndItsFileIsReplaced) {
  fs::create_directory(folder_ / "sub");
  folder_.write("sub/real", "old");
  fs::create_symlink("sub/second", folder_ / "a.ent");
  fs::create_symlink("real", folder_ / "sub/second");
  replace_with("new");
  EXPECT_TRUE(fs::is_symlink(folder_ / "a.ent"));
  EXPECT_TRUE(fs::is_symlink(folder_ / "sub/second"));
  EXPECT_EQ(folder_.read("sub/real"), "new");
  EXPECT_FALSE(fs::is_symlink(folder_ / "sub/real"));
}

TEST_F(ReplacementFileTest, ALinkToNothingYetLeadsToTheNewFile) {
  fs::create_symlink(folder_ / "real", folder_ / "a.ent");
  replace_with("new");
  EXPECT_TRUE(fs::is_symlink(folder_ / "a.ent"));
  EXPECT_EQ(folder_.read("real"), "new");
}

TEST_F(ReplacementFileTest, ALinkToItselfIsRefused) {
  fs::create_symlink("a.ent", folder_ / "a.ent");
  EXPECT_EQ(number_of([&] { start(); }), 70);
}

TEST_F(ReplacementFileTest, FromAnotherVolumeTheContentIsCopied) {
  folder_.write("a.ent", "old");
  ASSERT_EQ(chmod((folder_ / "a.ent").c_str(), 0640), 0);
  TwoVolumes calls;
  const ScopedSystemCalls in_use(calls);
  const std::string content(700000, 'n');
  replace_with(content);
  EXPECT_EQ(folder_.read("a.ent"), content);
  EXPECT_EQ(mode_of("a.ent"), 0640u);
  EXPECT_EQ(folder_.list(), Names{"a.ent"});
}

TEST_F(ReplacementFileTest, TwoWritersFromOtherVolumesMeetBesideTheTarget) {
  TwoVolumes calls;
  const ScopedSystemCalls in_use(calls);
  const auto held = files().create_replacement(folder_.name("a.ent.kwtmp"), folder_.name("other"));
  EXPECT_EQ(number_of([&] { replace_with("new"); }), 70);
  EXPECT_EQ(folder_.list(), Names{"a.ent.kwtmp"});
}

// The machine's memory volume, where it has one.
TEST_F(ReplacementFileTest, TheFoldersMayReallyLieOnDifferentVolumes) {
  if (!fs::is_directory("/dev/shm")) return;
  const TemporaryFolder other("/dev/shm");
  folder_.write("a.ent", "old");
  const auto file = files().create_replacement(other.name("a.tmp"), folder_.name("a.ent"));
  file->write("new");
  file->replace();
  EXPECT_EQ(folder_.read("a.ent"), "new");
  EXPECT_EQ(folder_.list(), Names{"a.ent"});
  EXPECT_TRUE(other.list().empty());
}

TEST_F(ReplacementFileTest, VeryLongNamesAreReplacedFromAnotherVolume) {
  TwoVolumes calls;
  const ScopedSystemCalls in_use(calls);
  const std::string target(255, 'n');
  const auto file = files().create_replacement(folder_.name("a.tmp"), folder_.name(target));
  file->write("new");
  file->replace();
  EXPECT_EQ(folder_.list(), Names{target});
}

TEST_F(ReplacementFileTest, AnIncompleteFileNeverTakesTheTargetsPlace) {
  folder_.write("a.ent", "old");
  const auto file = start();
  {
    FaultyCalls calls({Kind::error, ENOSPC, Repeat::once, 1});
    const ScopedSystemCalls in_use(calls);
    EXPECT_EQ(number_of([&] { file->write(std::string(500000, 'x')); }), 61);
  }
  EXPECT_EQ(number_of([&] { file->write("more"); }), 61);
  EXPECT_EQ(number_of([&] { file->replace(); }), 61);
  EXPECT_EQ(folder_.read("a.ent"), "old");
}

TEST_F(ReplacementFileTest, WhatAnotherProgramPutUnderTheTemporaryNameIsNotMoved) {
  folder_.write("a.ent", "old");
  {
    const auto file = start();
    file->write("new");
    fs::remove(folder_ / "a.tmp");
    folder_.write("a.tmp", "foreign");
    EXPECT_EQ(number_of([&] { file->replace(); }), 57);
  }
  EXPECT_EQ(folder_.read("a.ent"), "old");
  EXPECT_EQ(folder_.read("a.tmp"), "foreign");
}

}  // namespace
}  // namespace kw::platform
