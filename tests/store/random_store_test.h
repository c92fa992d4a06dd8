// What the readers' tests on files at random share.
#pragma once

#include <cstdint>
#include <string>

#include "random_files.h"
#include "store_test.h"

namespace kw::store {

class RandomStoreTest : public StoreTest {
 protected:
  static constexpr auto kName = u"a.ent";

  // Calls compare(random file maker, content) with the content in the file kName.
  template <class Compare>
  void on_random_files(std::uint64_t seed, Compare compare) {
    reference::for_random_inputs(seed, [&](reference::Random& random) {
      RandomFiles make(random);
      const std::string content = make.file();
      files.put(kName, content);
      files.piece = make.piece();
      compare(make, content);
      ASSERT_FALSE(HasFatalFailure()) << ::testing::PrintToString(content);
    });
  }
};

}  // namespace kw::store
