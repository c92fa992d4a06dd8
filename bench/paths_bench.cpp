// Paths with very many parents: the time grows in proportion to them.
#include <benchmark/benchmark.h>

#include <string>

#include "kwutils/clsFileUtil.h"

namespace kw::bench {
namespace {

void unmake_absolute(benchmark::State& state) {
  std::u16string path = u"aa";
  for (std::int64_t i = 0; i < state.range(0); ++i) path += u"\\aa\\..";
  const String sought(path + u"\\x");
  clsFileUtil util;
  for (auto step : state) {
    static_cast<void>(step);
    benchmark::DoNotOptimize(util.UnMakeAbsolute(sought));
  }
}

BENCHMARK(unmake_absolute)->Name("UnMakeAbsolute_parents")->Arg(1000)->Arg(10000);

}  // namespace
}  // namespace kw::bench
