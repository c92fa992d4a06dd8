// The examples of the methods of clsFileReadWrite.h that change a file.
#include "headers/entity_file.h"

namespace kw {
namespace {

using EntityWriting = EntityFile;

TEST_F(EntityWriting, OneEntity) {
  store.WriteEntity(file, u"node", u"B3", u"id 'B3' nm 'Well'");
  EXPECT_TRUE(holds("link\nNODE id 'B3' nm 'Well' node\n"));
  store.WriteEntity(file, u"node", u"B3", u"");
  EXPECT_FALSE(holds("B3"));
}

TEST_F(EntityWriting, OneEntityWithRows) {
  kw::Array<kw::String> levels;
  levels.redim(1, 2);
  levels.at(1) = u"0.0 1.7 <\r\n";
  levels.at(2) = u"1.0 2.7 <\r\n";
  store.WriteEntitywithTable(file, u"node", u"B2", u"id 'B2' TBLE ??tble", levels);
  EXPECT_TRUE(holds("NODE id 'B2' TBLE 0.0 1.7 <\n1.0 2.7 <\ntble node\nLINK"));
}

TEST_F(EntityWriting, OneEntityWithRowsOfAFile) {
  kw::Array<kw::String> rows;
  store.SetBufferSize(1);
  kw::Boolean stored;
  EXPECT_EQ(store.GetTableEntryUsingTempFile(file, u"", u"node", u"B2", rows, u"rows.txt", stored),
            2);
  EXPECT_EQ(stored, true);
  EXPECT_EQ(folder_.read("rows.txt"), " 0.0 1.5 <\r\n1.0 2.5 <\r\n");
  EXPECT_EQ(rows.upper(), 1);
  store.WriteEntitywithTableUsingTempFile(file, u"node", u"B4", u"id 'B4' TBLE ?? tble", rows,
                                          u"rows.txt", stored);
  EXPECT_TRUE(holds("link\nNODE id 'B4' TBLE 0.0 1.5 <\n1.0 2.5 <\n tble node\n"));
  EXPECT_EQ(number_of([&] {
              store.GetTableEntryUsingTempFile(file, u"", u"node", u"B2", rows, file, stored);
            }),
            70);
  const auto error_of_rows_in = [&](std::u16string_view name) {
    return number_of([&] {
      store.WriteEntitywithTableUsingTempFile(file, u"node", u"B4", u"??", rows, name, true);
    });
  };
  EXPECT_EQ(error_of_rows_in(u"net.tmp"), 70);
  EXPECT_EQ(error_of_rows_in(u"none.txt"), 53);
}

TEST_F(EntityWriting, Deleting) {
  store.DeleteEntity(file, u"node", u"B1");
  EXPECT_EQ(store.GetEntity(file, u"node", u"B1"), u"");
  EXPECT_FALSE(store.GetEntity(file, u"node", u"B2").empty());
}

TEST_F(EntityWriting, DeletingMany) {
  kw::Collection retired = kw::Collection::create();
  retired.add(u"", u"B1");
  store.DeleteEntitiesFromCollection(file, u"node", retired);
  EXPECT_EQ(store.GetEntity(file, u"node", u"B1"), u"");
  EXPECT_FALSE(retired);
}

TEST_F(EntityWriting, ACollection) {
  kw::Collection bodies = kw::Collection::create();
  bodies.add(u"id 'B1' nm 'Intake'", u"B1");
  bodies.add(u"id 'B5' nm 'Sump'", u"B5");
  EXPECT_EQ(store.WriteEntitiesFromCollection(file, u"node", bodies), true);
  EXPECT_EQ(store.GetEntity(file, u"node", u"B1"), u"id 'B1' nm 'Intake' ");
  EXPECT_FALSE(bodies);
  EXPECT_TRUE(holds("link\nNODE id 'B5' nm 'Sump' node\n"));
}

TEST_F(EntityWriting, MissingFilesAreCreated) {
  String fresh = u" fresh.dat ";
  store.DeleteEntity(fresh, u"node", u"B1");
  EXPECT_EQ(fresh, u"fresh.dat");
  EXPECT_EQ(folder_.list(), (std::vector<std::string>{"fresh.dat", "net.dat"}));
  String impossible = u"a.tmp";
  EXPECT_EQ(number_of([&] { store.WriteEntity(impossible, u"node", u"1", u"id '1'"); }), 5);
}

}  // namespace
}  // namespace kw
