// The readers of many entities against their steps, on files at random.
#include "random_store_test.h"
#include "reference/bulk_reads.h"
#include "reference/identifiers.h"

namespace kw::store {
namespace {

using reference::Gathering;
using reference::KeyedList;

class RandomBulkReads : public RandomStoreTest {
 protected:
  // Calls compare(random file maker, content, token).
  template <class Compare>
  void on_random_files(std::uint64_t seed, Compare compare) {
    RandomStoreTest::on_random_files(seed, [&](RandomFiles& make, const std::string& content) {
      const std::string token = make.token();
      compare(make, content, token);
      ASSERT_FALSE(HasFatalFailure()) << token;
    });
  }

  void expect_list(const std::pair<Collection, std::int32_t>& got,
                   const std::pair<KeyedList, std::int32_t>& expected) {
    ASSERT_EQ(got.second, expected.second);
    if (expected.second != 0) return;
    ASSERT_EQ(items(got.first, expected.first).items, expected.first.items);
  }
};

TEST_F(RandomBulkReads, GetEntitiesFollowsItsSteps) {
  on_random_files(20, [&](RandomFiles& make, const std::string& content, const std::string& token) {
    store.SetBufferSize(static_cast<std::int32_t>(make.pick(0, 3)));
    Array<String> buffer;
    ASSERT_TRUE(store.GetEntities(kName, text(token), buffer));
    ASSERT_EQ(buffer.lower(), 0);
    ASSERT_EQ(elements(buffer), reference::GetEntities({content}, token));
  });
}

TEST_F(RandomBulkReads, GetEntitiesWithoutTableFollowsItsSteps) {
  on_random_files(21, [&](RandomFiles&, const std::string& content, const std::string& token) {
    Array<String> buffer;
    const bool complete = store.GetEntitiesWithoutTable(kName, text(token), buffer);
    const auto expected =
        outcome([&] { return reference::GetEntitiesWithoutTable({content}, token); });
    ASSERT_EQ(complete, expected.second == 0);
    if (complete) {
      ASSERT_EQ(elements(buffer), expected.first);
    }
  });
}

TEST_F(RandomBulkReads, EntitiesAreCollectedAsTheStepsSay) {
  on_random_files(22, [&](RandomFiles& make, const std::string& content, const std::string& token) {
    const bool use_key = make.pick(0, 1) == 1;
    Collection list;
    ASSERT_TRUE(use_key ? store.GetEntitiesIntoCollWithKey(kName, text(token), list, true)
                        : store.GetEntitiesIntoColl(kName, text(token), list));
    const KeyedList expected = reference::ReadEntitiesIntoColl({content}, token, use_key);
    ASSERT_EQ(items(list, expected).items, expected.items);
  });
}

TEST_F(RandomBulkReads, GetEntitiesWithoutTableIntoCollFollowsItsSteps) {
  on_random_files(23, [&](RandomFiles&, const std::string& content, const std::string& token) {
    expect_list(
        outcome([&] {
          Collection list;
          EXPECT_TRUE(store.GetEntitiesWithoutTableIntoColl(kName, text(token), list));
          return list;
        }),
        outcome([&] { return reference::GetEntitiesWithoutTableIntoColl({content}, token); }));
  });
}

TEST_F(RandomBulkReads, GetEntityIDsIntoCollFollowsItsSteps) {
  on_random_files(24, [&](RandomFiles&, const std::string& content, const std::string& token) {
    expect_list(outcome([&] {
                  Collection list;
                  EXPECT_TRUE(store.GetEntityIDsIntoColl(kName, text(token), list));
                  return list;
                }),
                outcome([&] { return reference::GetEntityIDsIntoColl({content}, token); }));
  });
}

TEST_F(RandomBulkReads, SelectiveReadsFollowTheirSteps) {
  on_random_files(25, [&](RandomFiles& make, const std::string& content, const std::string& token) {
    KeyedList wanted;
    const Collection with_ids = Collection::create();
    for (std::size_t count = make.pick(0, 3); count != 0; --count) {
      const std::string id = make.id();
      if (wanted.add("", id)) with_ids.add(String(), widen(id));
    }
    const bool tables = make.pick(0, 1) == 0;
    auto expected = outcome([&] {
      return reference::GetEntitiesWithCollection(
          {content}, token, wanted, tables ? Gathering::whole : Gathering::without_table);
    });
    if (expected.second != 0) expected.second = 10001;
    expect_list(
        outcome([&] {
          Collection list;
          EXPECT_TRUE(tables ? store.GetEntitiesWithCollection(kName, text(token), list, with_ids)
                             : store.GetEntitiesWithoutTableWithCollection(kName, text(token), list,
                                                                           with_ids));
          return list;
        }),
        expected);
  });
}

TEST_F(RandomBulkReads, NewIdentifiersFollowTheirSteps) {
  on_random_files(26, [&](RandomFiles& make, const std::string& content, const std::string& token) {
    String type = text(token);
    std::optional<std::string> wanted;
    if (make.pick(0, 1) == 0) wanted = make.of({"5", "B1", "b1", " ", "77", "B 2", " 5", "7"});
    ASSERT_EQ(outcome([&] {
                return bytes(wanted ? store.CheckOrCreateNewID(kName, type, text(*wanted))
                                    : store.GetNewID(kName, type));
              }),
              outcome([&] { return reference::CheckOrCreateNewID({content}, token, wanted); }));
    ASSERT_EQ(bytes(type), reference::upper_case(token));
  });
}

TEST_F(RandomBulkReads, SearchKeyAndIDInFileFollowsItsSteps) {
  on_random_files(27, [&](RandomFiles& make, const std::string& content, const std::string& token) {
    const std::string key = make.keyword(), id_key = make.keyword();
    const std::string value = make.of({"Inlet", "1", "B1", "", "node"});
    const std::string id = make.of({"B1", "5", "b1", "", "tble"});
    std::int32_t present = 7, keys = 7, ids = 7;
    const auto expected = outcome(
        [&] { return reference::SearchKeyAndIDInFile({content}, token, key, value, id_key, id); });
    const auto got = outcome([&] {
      store.SearchKeyAndIDInFile(kName, text(token), text(key), text(value), text(id_key), text(id),
                                 present, keys, ids);
      return reference::ValueCount{present, keys, ids};
    });
    ASSERT_EQ(got, expected) << key << '|' << id_key << '|' << value << '|' << id;
  });
}

}  // namespace
}  // namespace kw::store
