// A scan holds a buffer and what it gathers, however large the file.
#include <gtest/gtest.h>

#include <functional>

#include "kwutils/clsFileReadWrite.h"
#include "platform/temporary_folder.h"
#include "store/counted_memory.h"

namespace kw::store {
namespace {

using kw::testing::TemporaryFolder;

constexpr std::size_t kMost = std::size_t{2} << 20;
#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kLargeFile = std::size_t{10} << 20;  // the sanitizers take their time
#else
constexpr std::size_t kLargeFile = std::size_t{50} << 20;
#endif

class ScanMemory : public ::testing::TestWithParam<std::size_t> {
 protected:
  ScanMemory() {
    std::string text;
    text.reserve(GetParam() + 200);
    for (int i = 0; text.size() < GetParam(); ++i) {
      const std::string id = std::to_string(i);
      text += "NODE id '" + id + "' nm 'a name' node\r\nLINK id '" + id +
              "'\r\n ; a comment\r\n\t1 2 3 link\r\n";
    }
    folder_.write("a.ent", text + "NODE id 'last' node\r\n");
  }

  static std::size_t peak_of(const std::function<void()>& call) {
    restart_memory_peak();
    call();
    return memory_peak();
  }

  TemporaryFolder folder_;
  String file_{folder_.name("a.ent")};
  const String node_{u"node"};
  clsFileReadWrite store_;
};

TEST_P(ScanMemory, OfALookUpIsConstant) {
  const std::size_t peak =
      peak_of([&] { EXPECT_EQ(store_.GetEntity(file_, node_, u"last").view(), u"id 'last' "); });
  EXPECT_LT(peak, kMost);
  EXPECT_GT(peak, std::size_t{256} << 10);  // the buffer, at least, is seen
}

TEST_P(ScanMemory, OfCountingIsConstant) {
  std::int32_t records = 0, keys = 0, ids = 0;
  EXPECT_LT(peak_of([&] {
              store_.SearchKeyAndIDInFile(file_, node_, String(u"nm"), String(u"a name"),
                                          String(u"id"), String(u"last"), records, keys, ids);
            }),
            kMost);
  EXPECT_EQ(ids, 1);
}

TEST_P(ScanMemory, OfAWriterIsConstant) {
  EXPECT_LT(
      peak_of([&] { store_.WriteEntity(file_, node_, String(u"last"), String(u"id 'last' x")); }),
      kMost);
  EXPECT_EQ(store_.GetEntity(file_, node_, u"last").view(), u"id 'last' x ");
}

TEST_P(ScanMemory, OfACollectionWriterIsConstant) {
  Collection entities = Collection::create();
  entities.add(Variant(u"id 'last' x"), u"last");
  EXPECT_LT(peak_of([&] { store_.WriteEntitiesFromCollection(file_, node_, entities); }), kMost);
}

TEST_P(ScanMemory, OfASelectiveReadIsConstant) {
  Collection wanted = Collection::create(), found;
  wanted.add(Variant(u""), u"last");
  EXPECT_LT(peak_of([&] { store_.GetEntitiesWithCollection(file_, node_, found, wanted); }), kMost);
  EXPECT_EQ(found.count(), 1);
}

TEST_P(ScanMemory, OfABlockThatNeverClosesIsConstant) {
  folder_.write("a.ent", "PUMP x\r\n" + folder_.read("a.ent"));
  EXPECT_LT(peak_of([&] { EXPECT_TRUE(store_.GetEntity(file_, node_, u"last").empty()); }), kMost);
}

INSTANTIATE_TEST_SUITE_P(FileSizes, ScanMemory, ::testing::Values(std::size_t{1} << 20, kLargeFile),
                         [](const auto& size) { return std::to_string(size.param >> 20) + "MiB"; });

}  // namespace
}  // namespace kw::store
