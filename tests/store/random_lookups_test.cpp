// The look-ups of one entity and its table against their steps, on files at random.
#include "random_store_test.h"
#include "reference/entity_lookup.h"
#include "reference/table_entry.h"

namespace kw::store {
namespace {

using reference::TextFile;

using RandomLookups = RandomStoreTest;

TEST_F(RandomLookups, GetEntityFollowsItsSteps) {
  on_random_files(10, [&](RandomFiles& make, const std::string& content) {
    const std::string token = make.token(), id = make.id();
    ASSERT_EQ(bytes(store.GetEntity(kName, text(token), text(id))),
              reference::GetEntity({content}, token, id))
        << token << '|' << id;
  });
}

TEST_F(RandomLookups, GetTokenEntityFollowsItsSteps) {
  on_random_files(11, [&](RandomFiles& make, const std::string& content) {
    const std::string token = make.token();
    ASSERT_EQ(bytes(store.GetTokenEntity(kName, text(token))),
              reference::GetTokenEntity({content}, token))
        << token;
  });
}

TEST_F(RandomLookups, GetEntityWithTokenAndSeekFollowsItsSteps) {
  on_random_files(12, [&](RandomFiles& make, const std::string& content) {
    const std::string token = make.token(), id = make.id();
    std::optional<std::string> item;
    std::optional<int> position;
    Variant item_given = Variant::missing(), position_given = Variant::missing();
    if (make.pick(0, 1) == 0) item_given = Variant(text(*(item = make.keyword())));
    if (make.pick(0, 1) == 0)
      position_given = Variant(static_cast<std::int32_t>(
          *(position = static_cast<int>(make.pick(0, content.size() + 3)) - 1)));
    ASSERT_EQ(bytes(store.GetEntityWithTokenAndSeek(kName, text(token), text(id), item_given,
                                                    position_given)),
              reference::FindEntity({content}, token, id, item, position))
        << token << '|' << id << '|' << item.value_or("-") << '|' << position.value_or(-9);
  });
}

TEST_F(RandomLookups, GetEntityWithoutTableFollowsItsSteps) {
  on_random_files(13, [&](RandomFiles& make, const std::string& content) {
    const std::string token = make.token(), id = make.id();
    ASSERT_EQ(
        outcome([&] { return bytes(store.GetEntityWithoutTable(kName, text(token), text(id))); }),
        outcome([&] { return reference::GetEntityWithoutTable({content}, token, id); }))
        << token << '|' << id;
  });
}

TEST_F(RandomLookups, GetTableEntryFollowsItsSteps) {
  on_random_files(14, [&](RandomFiles& make, const std::string& content) {
    const std::string token = make.token(), id = make.id();
    const std::size_t size = make.pick(1, 4);
    store.SetBufferSize(static_cast<std::int32_t>(size));
    Array<String> table;
    const auto expected = reference::GetTableEntry({content}, token, id, size);
    ASSERT_EQ(store.GetTableEntry(kName, String(), text(token), text(id), table), expected.result);
    ASSERT_EQ(table.lower(), 1);
    ASSERT_EQ(elements(table), expected.table) << token << '|' << id;
  });
}

TEST_F(RandomLookups, GetTableEntryUsingTempFileFollowsItsSteps) {
  on_random_files(15, [&](RandomFiles& make, const std::string& content) {
    const std::string token = make.token(), id = make.id();
    const std::size_t size = make.pick(1, 3);
    store.SetBufferSize(static_cast<std::int32_t>(size));
    files.put(u"rows", "before");
    Array<String> table;
    Boolean stored = true;
    const auto expected = reference::GetTableEntryUsingTempFile({content}, token, id, size);
    ASSERT_EQ(store.GetTableEntryUsingTempFile(kName, String(), text(token), text(id), table,
                                               u"rows", stored),
              expected.result);
    ASSERT_EQ(elements(table), expected.table) << token << '|' << id;
    ASSERT_EQ(bool(stored), expected.spill.has_value());
    ASSERT_EQ(files.content(u"rows"), expected.spill.value_or("before"));
  });
}

}  // namespace
}  // namespace kw::store
