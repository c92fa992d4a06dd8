// One value read from, and written to, an INI file that is opened for each call, beside the floors.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>

#include "ini_data.h"
#include "ini_floors.h"
#include "kwutils/clsIni.h"
#include "measure.h"

namespace kw::bench {
namespace {

constexpr std::size_t kPerSection = 100;

// A folder of files of the sizes that are measured, gone with the program.
class Files {
 public:
  Files() {
    std::string name = (std::filesystem::temp_directory_path() / "kw-ini-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for the files");
    folder_ = name;
  }
  ~Files() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  std::filesystem::path of(std::size_t entries, std::size_t per_section) {
    const std::string name = std::to_string(entries) + "-" + std::to_string(per_section) + ".ini";
    const std::filesystem::path path = folder_ / name;
    if (!std::filesystem::exists(path)) {
      std::ofstream(path, std::ios::binary) << ini_text(entries, per_section);
    }
    return path;
  }

 private:
  std::filesystem::path folder_;
};

// The file of a benchmark and the entry that it asks for. The first argument is the number of
// entries; in one section where `sections` is false.
struct Target {
  Target(const benchmark::State& state, bool sections, bool last = true) {
    static Files files;
    const auto entries = static_cast<std::size_t>(state.range(0));
    const std::size_t per_section = sections ? kPerSection : entries;
    const std::size_t number = last ? entries - 1 : 0;
    path = files.of(entries, per_section);
    section = ini_section(number, per_section);
    key = ini_key(number);
  }
  std::filesystem::path path;
  std::string section;
  std::string key;
};

std::u16string wide(const std::string& text) { return {text.begin(), text.end()}; }

void get(benchmark::State& state, bool sections, bool last) {
  const Target target(state, sections, last);
  const auto file = target.path.u16string();
  const auto section = wide(target.section);
  const auto key = wide(target.key);
  if (clsIni().GetIni(section, key, u"", file).empty()) return state.SkipWithError("not found");
  measure(state, [&] { return clsIni().GetIni(section, key, u"", file); });
}

void floor_get(benchmark::State& state, bool sections, bool last) {
  const Target target(state, sections, last);
  if (floor_ini_get(target.path, target.section, target.key).empty()) {
    return state.SkipWithError("not found");
  }
  measure(state, [&] { return floor_ini_get(target.path, target.section, target.key); });
}

void write(benchmark::State& state, bool) {
  const Target target(state, true);
  const auto file = target.path.u16string();
  const auto section = wide(target.section);
  const auto key = wide(target.key);
  int round = 0;
  measure(state, [&] {
    const bool done = clsIni().WriteIni(section, key, ++round % 2 ? u"one" : u"two", file) == 1;
    if (!done) throw std::runtime_error("not written");
    return done;
  });
}

void floor_write(benchmark::State& state, bool flush) {
  const Target target(state, true);
  measure(state, [&] {
    floor_ini_rewrite(target.path, flush);
    return true;
  });
}

BENCHMARK_CAPTURE(floor_get, , false, true)
    ->Name("Ini_find")
    ->Arg(100)
    ->Arg(10000)
    ->UseManualTime();
BENCHMARK_CAPTURE(floor_get, , true, true)->Name("Ini_find_section")->Arg(10000)->UseManualTime();
BENCHMARK_CAPTURE(floor_get, , false, false)->Name("Ini_find_first")->Arg(10000)->UseManualTime();
BENCHMARK_CAPTURE(get, , false, true)->Name("GetIni")->Arg(100)->Arg(10000)->UseManualTime();
BENCHMARK_CAPTURE(get, , true, true)->Name("GetIni_section")->Arg(10000)->UseManualTime();
BENCHMARK_CAPTURE(get, , false, false)->Name("GetIni_first")->Arg(10000)->UseManualTime();
BENCHMARK_CAPTURE(floor_write, , true)->Name("Ini_rewrite")->Arg(10000)->UseManualTime();
BENCHMARK_CAPTURE(floor_write, , false)->Name("Ini_rewrite_unflushed")->Arg(10000)->UseManualTime();
BENCHMARK_CAPTURE(write, , false)->Name("WriteIni")->Arg(10000)->UseManualTime();

}  // namespace
}  // namespace kw::bench
