// The operating system's files, as far as they differ from those of other systems.
#include "platform/files.h"

#include <gtest/gtest.h>

#include "platform/temporary_folder.h"
#include "platform/windows/system.h"
#include "support/expect_error.h"

namespace kw::platform {
namespace {

using kw::testing::number_of;
using kw::testing::TemporaryFolder;

std::string read_file(std::u16string_view name) {
  const auto file = files().open_input(name);
  std::string content;
  char block[7];
  while (const std::size_t size = file->read(block, sizeof block)) content.append(block, size);
  return content;
}

void write_file(std::u16string_view name, std::string_view content) {
  const auto file = files().create_output(name);
  file->write(content);
  file->close();
}

class WindowsFiles : public ::testing::Test {
 protected:
  TemporaryFolder folder_;
};

TEST_F(WindowsFiles, AreReadFromAnyPosition) {
  folder_.write("a.ent", "0123456789");
  const auto file = files().open_input(folder_.name("a.ent"));
  EXPECT_EQ(file->size_hint(), 10);
  char text[16];
  file->seek(4);
  EXPECT_EQ(std::string(text, file->read(text, sizeof text)), "456789");
  file->seek(1000);
  EXPECT_EQ(file->read(text, sizeof text), 0u);
  EXPECT_EQ(number_of([&] { file->seek(-1); }), 63);
}

TEST_F(WindowsFiles, AreWrittenInAnyPieces) {
  std::string expected;
  const auto file = files().create_output(folder_.name("out.txt"));
  for (std::size_t size : {0u, 1u, 131071u, 131073u, 400000u, 3u}) {
    const std::string piece(size, static_cast<char>('a' + expected.size() % 26));
    expected += piece;
    file->write(piece);
  }
  file->close();
  EXPECT_EQ(folder_.read("out.txt"), expected);
}

TEST_F(WindowsFiles, MayHaveEveryCharacterInTheirNames) {
  for (const std::u16string name : {u"Malm\u00F6 \u0416 \u4E2D.ent", u"\U0001F600.ent"}) {
    const std::u16string path = folder_.path().u16string() + u"\\" + name;
    write_file(path, "x");
    EXPECT_TRUE(files().exists(path));
    EXPECT_EQ(read_file(path), "x");
  }
}

TEST_F(WindowsFiles, MayHaveNamesOfAnyLength) {
  std::u16string path = folder_.path().u16string();
  for (int depth = 0; depth < 12; ++depth) {
    path += u"\\" + std::u16string(50, static_cast<char16_t>(u'a' + depth));
    ASSERT_TRUE(CreateDirectoryW(wide(u"\\\\?\\" + path), nullptr)) << GetLastError();
  }
  ASSERT_GT(path.size(), 600u);
  write_file(path + u"\\a.ent", "x");
  EXPECT_EQ(read_file(path + u"\\a.ent"), "x");
  EXPECT_TRUE(files().exists(path + u"\\.\\a.ent"));
  const auto file = files().create_replacement(path + u"\\a.tmp", path + u"\\a.ent");
  file->write("new");
  file->replace();
  EXPECT_EQ(read_file(path + u"/a.ent"), "new");
  files().remove(path + u"\\a.ent");
  EXPECT_FALSE(files().exists(path + u"\\a.ent"));
  while (path.size() > folder_.path().u16string().size()) {
    RemoveDirectoryW(wide(u"\\\\?\\" + path));
    path.resize(path.find_last_of(u'\\'));
  }
}

TEST_F(WindowsFiles, TellAMissingFileFromAMissingFolderOrDrive) {
  const std::u16string file = folder_.name("gone.ent"), deep = folder_.name("gone\\a.ent");
  EXPECT_EQ(number_of([&] { files().open_input(file); }), 53);
  EXPECT_EQ(number_of([&] { files().open_input(deep); }), 76);
  EXPECT_EQ(number_of([&] { files().create_output(deep); }), 76);
  EXPECT_EQ(number_of([&] { files().remove(file); }), 53);
  EXPECT_EQ(number_of([&] { files().check_attributes(deep); }), 76);
  EXPECT_EQ(number_of([&] { files().open_input(u"Q:\\a.ent"); }), 76);
  EXPECT_FALSE(files().exists(u"Q:\\a.ent"));
}

TEST_F(WindowsFiles, AreNoFolders) {
  folder_.write("a.ent", "x");
  EXPECT_EQ(number_of([&] { files().open_input(folder_.name("a.ent\\b.ent")); }), 76);
  EXPECT_EQ(number_of([&] { files().open_input(folder_.path().u16string()); }), 70);
  EXPECT_EQ(number_of([&] { files().create_output(folder_.path().u16string()); }), 70);
  EXPECT_EQ(number_of([&] { files().remove(folder_.path().u16string()); }), 70);
  EXPECT_TRUE(files().exists(folder_.path().u16string()));
}

TEST_F(WindowsFiles, WithImpossibleNamesAreRefused) {
  for (const std::u16string& name : {std::u16string(), std::u16string(u"a\0b", 3),
                                     folder_.name("a*.ent"), folder_.name("a?.ent")}) {
    EXPECT_EQ(number_of([&] { files().open_input(name); }), 52);
    EXPECT_EQ(number_of([&] { files().create_output(name); }), 52);
    EXPECT_FALSE(files().exists(name));
  }
}

TEST_F(WindowsFiles, MayHaveSeveralNames) {
  folder_.write("a.ent", "x");
  folder_.write("b.ent", "x");
  const std::u16string a = folder_.name("a.ent"), link = folder_.name("link.ent");
  ASSERT_TRUE(CreateHardLinkW(wide(link), wide(a), nullptr));
  EXPECT_TRUE(files().same_file(a, link));
  EXPECT_TRUE(files().same_file(a, folder_.name(".\\A.ENT")));
  EXPECT_FALSE(files().same_file(a, folder_.name("b.ent")));
  EXPECT_FALSE(files().same_file(folder_.name("gone"), folder_.name("gone")));
  EXPECT_FALSE(files().same_file(u"", u""));
}

TEST_F(WindowsFiles, AreEmptiedThoughTheyAreHidden) {
  folder_.write("a.ent", "old and long");
  const std::u16string name = folder_.name("a.ent");
  SetFileAttributesW(wide(name), FILE_ATTRIBUTE_HIDDEN);
  write_file(name, "new");
  EXPECT_EQ(folder_.read("a.ent"), "new");
  EXPECT_NE(GetFileAttributesW(wide(name)) & FILE_ATTRIBUTE_HIDDEN, 0u);
}

TEST_F(WindowsFiles, AreSharedByReadersAndWriters) {
  folder_.write("a.ent", "0123");
  const std::u16string name = folder_.name("a.ent");
  const auto writer = files().create_output(name);
  const auto reader = files().open_input(name);
  const auto other = files().open_input(name);
  writer->write("45");
  writer->close();
  char text[8];
  EXPECT_EQ(std::string(text, reader->read(text, sizeof text)), "45");
  files().remove(name);
  EXPECT_EQ(std::string(text, other->read(text, sizeof text)), "45");
}

TEST_F(WindowsFiles, InUseByOthersAreToldApartFromForbiddenOnes) {
  folder_.write("a.ent", "x");
  const std::u16string name = folder_.name("a.ent");
  const Handle alone(CreateFileW(wide(name), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(alone);
  const Error error = kw::testing::error_of([&] { files().open_input(name); });
  EXPECT_EQ(error.number, ErrorNumber::permission_denied);
  EXPECT_EQ(error.system_code, ERROR_SHARING_VIOLATION);
}

}  // namespace
}  // namespace kw::platform
