// The examples of the methods of clsFileReadWrite.h that look entities up.
#include "headers/entity_file.h"

namespace kw {
namespace {

using EntityReading = EntityFile;

TEST_F(EntityReading, OneEntity) {
  EXPECT_EQ(store.GetEntity(file, u"node", u"b1"), u"id 'B1' nm 'Inlet' ");
  EXPECT_EQ(store.GetEntity(file, u"node", u"nm 'inlet'"), u"id 'B1' nm 'Inlet' ");
  EXPECT_EQ(store.GetEntity(file, u"node", u"node"), u"id 'B1' nm 'Inlet' ");
  EXPECT_EQ(store.GetEntity(file, u"node", u"B9"), u"");
  EXPECT_EQ(store.GetTokenEntity(file, u"node"), u"id 'B1' nm 'Inlet' ");
  EXPECT_EQ(store.GetEntityWithoutTable(file, u"node", u"B2"), u"id 'B2' nm 'Outlet' \r\n ");
  EXPECT_EQ(number_of([&] { store.GetEntity(u"none.dat", u"node", u"B1"); }), 53);
}

TEST_F(EntityReading, FromAPosition) {
  EXPECT_EQ(store.GetEntityWithTokenAndSeek(file, u"node", u"inlet", u"nm"),
            u"id 'B1' nm 'Inlet' ");
  const kw::Variant behind_b1(62);
  EXPECT_EQ(store.GetEntityWithTokenAndSeek(file, u"node", u"inlet", u"nm", behind_b1), u"");
  EXPECT_EQ(store.GetEntityWithTokenAndSeek(file, u"node", u"inlet", u"nm", Variant(u"x")),
            u"id 'B1' nm 'Inlet' ");
  EXPECT_EQ(number_of([&] {
              store.GetEntityWithTokenAndSeek(file, u"node", u"B1", Variant(Object(nullptr)));
            }),
            91);
}

TEST_F(EntityReading, RowsOfATable) {
  kw::Array<kw::String> rows;
  EXPECT_EQ(store.GetTableEntry(file, u"", u"node", u"B2", rows), 2);
  EXPECT_EQ(rows.at(1), u" 0.0 1.5 <\r\n");
  EXPECT_EQ(rows.at(2), u"1.0 2.5 <\r\n");
  store.SetBufferSize(0);
  EXPECT_EQ(number_of([&] { store.GetTableEntry(file, u"", u"node", u"B2", rows); }), 9);
}

TEST_F(EntityReading, TheWantedEntities) {
  const kw::Collection wanted = kw::Collection::create();
  wanted.add(u"", u"B1");
  wanted.add(u"", u"B9");
  kw::Collection found;
  EXPECT_EQ(store.GetEntitiesWithCollection(file, u"node", found, wanted), true);
  EXPECT_EQ(found.count(), 1);
  EXPECT_EQ(found.item(u"B1").text(), u"id 'B1' nm 'Inlet' ");
  wanted.add(u"", u"B2");
  EXPECT_EQ(store.GetEntitiesWithoutTableWithCollection(file, u"node", found, wanted), true);
  EXPECT_EQ(found.item(u"B2").text(), u"id 'B2' nm 'Outlet' \r\n ");
}

TEST_F(EntityReading, AllEntitiesInACollection) {
  kw::Collection all;
  EXPECT_EQ(store.GetEntitiesIntoColl(file, u"node", all), true);
  EXPECT_EQ(all.item(1).text(), u"id 'B1' nm 'Inlet' ");
  kw::Collection nodes;
  EXPECT_EQ(store.GetEntitiesIntoCollWithKey(file, u"node", nodes, true), true);
  EXPECT_EQ(nodes.item(u"b1").text(), u"id 'B1' nm 'Inlet' ");
  EXPECT_EQ(store.GetEntitiesWithoutTableIntoColl(file, u"node", all), true);
  EXPECT_EQ(all.item(u"B2").text(), u"id 'B2' nm 'Outlet' \r\n ");
  EXPECT_EQ(store.IsIdInCollection(all, u"b2"), true);
  EXPECT_EQ(store.IsIdInCollection(all, u"B9"), false);
}

TEST_F(EntityReading, AllEntitiesInAnArray) {
  kw::Array<kw::String> entities;
  EXPECT_EQ(store.GetEntities(file, u"node", entities), true);
  EXPECT_EQ(entities.upper(), 2);
  EXPECT_EQ(entities.at(1), u"id 'B1' nm 'Inlet' ");
  EXPECT_EQ(store.GetEntitiesWithoutTable(file, u"node", entities), true);
  EXPECT_EQ(entities.at(2), u"id 'B2' nm 'Outlet' \r\n ");
  store.SetBufferSize(-1);
  EXPECT_EQ(number_of([&] { store.GetEntities(file, u"node", entities); }), 9);
}

TEST_F(EntityReading, Lists) {
  kw::Collection ids, names;
  kw::String id, name;
  store.List2EntitieswithSearch(file, u"NODE", id, u"", ids, name, names, true, false);
  EXPECT_EQ(id, u"id");
  EXPECT_EQ(name, u"nm");
  EXPECT_EQ(ids.count(), 2);
  EXPECT_EQ(names.item(u"B2").text(), u"Outlet");
  store.List2EntitieswithSearch(file, u"node", id, u"", ids, name, names, true, false);
  EXPECT_EQ(ids.count(), 0);
  kw::Collection places;
  store.List2EntitieswithSearchandSeek(file, u"NODE", id, u"nm 'Outlet'", ids, name, names, true,
                                       false, true, places);
  EXPECT_EQ(places.item(u"B2").to_int32(), 62);
}

TEST_F(EntityReading, ListsOfParts) {
  kw::String id, name;
  kw::Collection pipes, pipe_names;
  store.SubList2EntitieswithSearch(file, u"LINK", u"PIPE", id, u"", pipes, name, pipe_names, true,
                                   false);
  EXPECT_EQ(pipes.count(), 2);
  EXPECT_EQ(pipe_names.item(u"P2").text(), u"Lower");
}

// The three methods that fill lists are the ones to which the case of a type, and blanks around it,
// matter.
TEST_F(EntityReading, ListsTakeATypeAsItStands) {
  kw::Collection ids, names, places;
  kw::String id, name;
  for (const char16_t* type : {u"node", u" NODE"}) {
    store.List2EntitieswithSearch(file, type, id, u"", ids, name, names, true, false);
    EXPECT_EQ(ids.count(), 0);
    store.List2EntitieswithSearchandSeek(file, type, id, u"", ids, name, names, true, false, true,
                                         places);
    EXPECT_EQ(places.count(), 0);
  }
  store.SubList2EntitieswithSearch(file, u"link", u"PIPE", id, u"", ids, name, names, true, false);
  EXPECT_EQ(ids.count(), 0);
}

TEST_F(EntityReading, Identifiers) {
  kw::Collection ids;
  EXPECT_EQ(store.GetEntityIDsIntoColl(file, u"node", ids), true);
  EXPECT_EQ(ids.item(2).text(), u"B2");
  kw::String type = u"node";
  EXPECT_EQ(store.GetNewID(file, type), u"1");
  EXPECT_EQ(type, u"NODE");
  EXPECT_EQ(store.CheckOrCreateNewID(file, type, u"B3"), u"B3");
  EXPECT_EQ(store.CheckOrCreateNewID(file, type, u"b1"), u"1");
}

TEST_F(EntityReading, ValuesInUse) {
  std::int32_t both, named, identified;
  store.SearchKeyAndIDInFile(file, u"node", u"nm", u"Inlet", u"id", u"B2", both, named, identified);
  EXPECT_EQ(both, 0);
  EXPECT_EQ(named, 1);
  EXPECT_EQ(identified, 1);
}

}  // namespace
}  // namespace kw
