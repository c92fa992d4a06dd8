// The writers against their steps, byte for byte, on files at random.
#include "random_files.h"
#include "reference/entity_writers.h"
#include "store_test.h"

namespace kw::store {
namespace {

using reference::Content;
using reference::KeyedList;
using reference::Random;

class RandomWriters : public StoreTest {
 protected:
  // Calls compare(maker, old content), with that content, if any, in the file a.ent.
  template <class Compare>
  void on_random_files(std::uint64_t seed, Compare compare) {
    reference::for_random_inputs(seed, [&](Random& random) {
      RandomFiles make(random);
      Content old;
      if (make.pick(0, 19) != 0) old = make.file();
      files.clear();
      if (old) files.put(u"a.ent", *old);
      files.piece = make.piece();
      compare(make, old);
      ASSERT_FALSE(HasFatalFailure()) << ::testing::PrintToString(old);
      ASSERT_EQ(files.count(), files.exists(u"rows") ? 2u : 1u);
    });
  }

  String name = u"a.ent";

  // Some keys that the files hold, and others, with their texts.
  static std::pair<KeyedList, Collection> some_items(RandomFiles& make) {
    std::pair<KeyedList, Collection> both{{}, Collection::create()};
    for (std::size_t count = make.pick(1, 4); count != 0; --count) {
      const std::string id = make.id(), entity = make.text();
      if (both.first.add(entity, id)) both.second.add(text(entity), widen(id));
    }
    return both;
  }
};

TEST_F(RandomWriters, WriteEntityFollowsItsSteps) {
  on_random_files(30, [&](RandomFiles& make, const Content& old) {
    const std::string token = make.token(), id = make.id(), entity = make.text();
    store.WriteEntity(name, text(token), text(id), text(entity));
    ASSERT_EQ(files.content(u"a.ent"), reference::WriteEntity(old, token, id, entity))
        << token << '|' << id << '|' << entity;
  });
}

TEST_F(RandomWriters, DeleteEntityFollowsItsSteps) {
  on_random_files(31, [&](RandomFiles& make, const Content& old) {
    const std::string token = make.token(), id = make.id();
    store.DeleteEntity(name, text(token), text(id));
    ASSERT_EQ(files.content(u"a.ent"), reference::WriteEntity(old, token, id, ""))
        << token << '|' << id;
  });
}

TEST_F(RandomWriters, WriteEntitywithTableFollowsItsSteps) {
  on_random_files(32, [&](RandomFiles& make, const Content& old) {
    const std::string token = make.token(), id = make.id(), entity = make.text();
    Array<String> table;
    table.redim(0, 2);
    table.at(0) = u"never";
    table.at(1) = u"1 <\r\n";
    table.at(2) = u"2 <\r\n";
    store.WriteEntitywithTable(name, text(token), text(id), text(entity), table);
    ASSERT_EQ(files.content(u"a.ent"),
              reference::WriteEntitywithTable(old, token, id, entity, {"1 <\r\n", "2 <\r\n"}));
  });
}

TEST_F(RandomWriters, WriteEntitywithTableUsingTempFileFollowsItsSteps) {
  on_random_files(33, [&](RandomFiles& make, const Content& old) {
    const std::string token = make.token(), id = make.id(), entity = make.text();
    const std::string rows = make.file();
    files.put(u"rows", rows);
    store.WriteEntitywithTableUsingTempFile(name, text(token), text(id), text(entity), {}, u"rows",
                                            true);
    ASSERT_EQ(files.content(u"a.ent"), reference::WriteEntitywithTable(
                                           old, token, id, entity, reference::stored_rows({rows})));
  });
}

TEST_F(RandomWriters, DeleteEntitiesFromCollectionFollowsItsSteps) {
  on_random_files(34, [&](RandomFiles& make, const Content& old) {
    const std::string token = make.token();
    auto [expected_left, ids] = some_items(make);
    const Collection second = ids;
    store.DeleteEntitiesFromCollection(name, text(token), ids);
    ASSERT_EQ(files.content(u"a.ent"),
              reference::DeleteEntitiesFromCollection(old, token, expected_left));
    ASSERT_FALSE(ids);
    ASSERT_EQ(items(second, expected_left).items, expected_left.items);
  });
}

TEST_F(RandomWriters, WriteEntitiesFromCollectionFollowsItsSteps) {
  on_random_files(35, [&](RandomFiles& make, const Content& old) {
    const std::string token = make.token();
    auto [expected_left, entities] = some_items(make);
    const Collection second = entities;
    ASSERT_TRUE(store.WriteEntitiesFromCollection(name, text(token), entities));
    ASSERT_EQ(files.content(u"a.ent"),
              reference::WriteEntitiesFromCollection(old, token, expected_left));
    ASSERT_FALSE(entities);
    ASSERT_EQ(items(second, expected_left).items, expected_left.items);
  });
}

}  // namespace
}  // namespace kw::store
