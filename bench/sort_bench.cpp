// clsQSort beside the floors of sort_floors.h, on random numbers and texts.
//
// Sort_* and Floor_* sort one long array; Small_* and SmallStd_* many short ones, so that no branch
// predictor learns them; Index_* and Literal_* sort an order array along; Texts_* sort texts.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <numeric>
#include <string>
#include <type_traits>
#include <vector>

#include "kwutils/clsQSort.h"
#include "measure.h"
#include "random.h"
#include "sort_floors.h"

namespace kw::bench {
namespace {

const clsQSort kSort;

// Real numbers lie between 0 and 1, whole numbers anywhere.
template <class T>
std::vector<T> random_numbers(std::size_t count) {
  Random random(1, sizeof(T));
  std::vector<T> numbers(count);
  for (T& number : numbers) {
    if constexpr (std::is_floating_point_v<T>)
      number = static_cast<T>(static_cast<double>(random.next() >> 11) * 0x1p-53);
    else
      number = static_cast<T>(random.next());
  }
  return numbers;
}

void sort_plainly(Array<double>& array) { kSort.dQSort(array); }
void sort_plainly(Array<float>& array) { kSort.fQSort(array); }
void sort_plainly(Array<std::int16_t>& array) { kSort.iQSort(array); }
void sort_plainly(Array<std::int32_t>& array) { kSort.lQSort(array); }

using Order = Array<std::int32_t>;

void sort_along(Array<double>& array, Order& order) { kSort.dQSortNRAscIndex(array, order); }
void sort_along(Array<float>& array, Order& order) { kSort.fQSortNRAscIndex(array, order); }
void sort_along(Array<std::int16_t>& array, Order& order) { kSort.iQSortNRAscIndex(array, order); }
void sort_along(Array<std::int32_t>& array, Order& order) { kSort.lQSortNRAscIndex(array, order); }

template <class T>
void floor_of(T* numbers, std::size_t count) {
  radix_sort(numbers, count);
}
void floor_of(std::int16_t* numbers, std::size_t count) { counting_sort(numbers, count); }

// Fails a benchmark whose result is not in order.
template <class T>
void expect_sorted(benchmark::State& state, const T* first, std::size_t count) {
  if (!std::is_sorted(first, first + count)) state.SkipWithError("not sorted");
}

// One long array of range(0) numbers; sort(array) sorts it.
template <class T, class Sort>
void run_long(benchmark::State& state, Sort sort) {
  const std::vector<T> numbers = random_numbers<T>(static_cast<std::size_t>(state.range(0)));
  auto array = Array<T>::of(1, numbers);
  T* const data = array.elements().data();
  measure(
      state, [&] { std::copy(numbers.begin(), numbers.end(), data); },
      [&] {
        sort(array);
        return 0;
      });
  expect_sorted(state, data, numbers.size());
}

template <class T>
void sort_long(benchmark::State& state) {
  run_long<T>(state, [](Array<T>& array) { sort_plainly(array); });
}

template <class T>
void floor_long(benchmark::State& state) {
  run_long<T>(state, [](Array<T>& array) { floor_of(array.elements().data(), array.size()); });
}

// How short arrays are ordered before they are sorted.
enum Shape : std::int64_t { kShuffled, kSorted, kReversed };

template <class T>
void put_in_shape(Shape shape, T* first, T* last) {
  if (shape == kSorted) std::sort(first, last);
  if (shape == kReversed) std::sort(first, last, std::greater<>());
}

// Many arrays of range(0) numbers each, of the shape range(1).
template <class T, class Sort>
void run_short(benchmark::State& state, Sort sort) {
  constexpr std::size_t kNumbers = 100'000;
  const auto length = static_cast<std::size_t>(state.range(0));
  std::vector<T> numbers = random_numbers<T>(kNumbers / length * length);
  std::vector<Array<T>> arrays;
  for (std::size_t first = 0; first < numbers.size(); first += length) {
    put_in_shape(Shape{state.range(1)}, &numbers[first], &numbers[first] + length);
    arrays.push_back(Array<T>::of(1, std::vector<T>(length)));
  }
  const auto restore = [&] {
    const T* from = numbers.data();
    for (Array<T>& array : arrays) {
      std::copy_n(from, length, array.elements().data());
      from += length;
    }
  };
  measure(state, restore, [&] {
    for (Array<T>& array : arrays) sort(array);
    return 0;
  });
  for (Array<T>& array : arrays) expect_sorted(state, array.elements().data(), length);
}

template <class T>
void sort_short(benchmark::State& state) {
  run_short<T>(state, [](Array<T>& array) { sort_plainly(array); });
}

template <class T>
void std_short(benchmark::State& state) {
  run_short<T>(state, [](Array<T>& array) {
    const auto elements = array.elements();
    std::sort(elements.begin(), elements.end());
  });
}

// An array of range(0) numbers, range(1) different ones (0: all there are), and its order array.
template <class T, class Sort>
void run_along(benchmark::State& state, Sort sort) {
  std::vector<T> numbers = random_numbers<T>(static_cast<std::size_t>(state.range(0)));
  Random random(2, 0);
  if (const auto different = static_cast<std::size_t>(state.range(1)); different > 0)
    for (T& number : numbers) number = static_cast<T>(random.below(different));
  auto array = Array<T>::of(0, numbers);
  auto order = Order::of(0, std::vector<std::int32_t>(numbers.size()));
  const auto restore = [&] {
    std::copy(numbers.begin(), numbers.end(), array.elements().data());
    const auto indexes = order.elements();
    std::iota(indexes.begin(), indexes.end(), 0);
  };
  measure(state, restore, [&] {
    sort(array, order);
    return 0;
  });
  expect_sorted(state, array.elements().data(), numbers.size());
}

template <class T>
void sort_index(benchmark::State& state) {
  run_along<T>(state, [](Array<T>& array, Order& order) { sort_along(array, order); });
}

template <class T>
void literal_index(benchmark::State& state) {
  run_along<T>(state, [](Array<T>& array, Order& order) {
    literal_scheme(array.elements().data(), order.elements().data(),
                   static_cast<std::int32_t>(array.size()), [](T a, T b) { return a < b; });
  });
}

std::u16string_view text_of(BSTR text) { return {text, SysStringLen(text)}; }

// Five to twenty letters of both cases.
std::u16string random_text(Random& random) {
  std::u16string text(random.between(5, 20), u' ');
  for (char16_t& letter : text)
    letter = static_cast<char16_t>((random.below(2) == 0 ? u'a' : u'A') + random.below(26));
  return text;
}

// An array of range(0) texts, with an order array; sort(array, order) sorts them.
template <class Sort>
void run_texts(benchmark::State& state, Sort sort) {
  Random random(3, 0);
  std::vector<String> texts;
  for (std::int64_t k = 0; k < state.range(0); ++k) texts.emplace_back(random_text(random));
  auto array = Array<String>::of(0, std::move(texts));
  auto order = Order::of(0, std::vector<std::int32_t>(array.size()));
  BSTR* const data = reinterpret_cast<BSTR*>(array.elements().data());
  const std::vector<BSTR> unsorted(data, data + array.size());
  const auto restore = [&] {
    std::copy(unsorted.begin(), unsorted.end(), data);
    const auto indexes = order.elements();
    std::iota(indexes.begin(), indexes.end(), 0);
  };
  measure(state, restore, [&] {
    sort(array, order);
    return 0;
  });
}

struct Binary {
  static constexpr std::int32_t kMethod = 0;
  bool operator()(BSTR a, BSTR b) const { return text_of(a) < text_of(b); }
};
struct Text {
  static constexpr std::int32_t kMethod = 1;
  bool operator()(BSTR a, BSTR b) const { return compare_folded(text_of(a), text_of(b)) < 0; }
};

BSTR* pointers_of(Array<String>& array) { return reinterpret_cast<BSTR*>(array.elements().data()); }

template <class How>
void sort_texts(benchmark::State& state) {
  run_texts(state, [](Array<String>& array, Order&) { kSort.sQSort(array, false, How::kMethod); });
}

template <class How>
void sort_texts_index(benchmark::State& state) {
  run_texts(state, [](Array<String>& array, Order& order) {
    kSort.sQSortNRAscIndex(array, order, How::kMethod);
  });
}

template <class How>
void literal_texts(benchmark::State& state) {
  run_texts(state, [](Array<String>& array, Order&) {
    literal_scheme(pointers_of(array), nullptr, static_cast<std::int32_t>(array.size()), How{});
  });
}

template <class How>
void literal_texts_index(benchmark::State& state) {
  run_texts(state, [](Array<String>& array, Order& order) {
    literal_scheme(pointers_of(array), order.elements().data(),
                   static_cast<std::int32_t>(array.size()), How{});
  });
}

void multikey_texts(benchmark::State& state) {
  run_texts(state, [](Array<String>& array, Order&) {
    CachedMultikey<BSTR, decltype(&text_of)>::sort(pointers_of(array), array.size(), &text_of);
  });
}

void std_texts(benchmark::State& state) {
  run_texts(state, [](Array<String>& array, Order&) {
    std::sort(pointers_of(array), pointers_of(array) + array.size(), Binary{});
  });
}

using Register = benchmark::internal::Benchmark;

Register* at_full_length(Register* benchmark) {
  return benchmark->Arg(1'000'000)->UseManualTime()->Unit(benchmark::kMillisecond);
}

template <class T>
void register_numbers(const std::string& type) {
  const auto name = [&type](const char* kind) { return (kind + type); };
  for (auto* run : {benchmark::RegisterBenchmark(name("Floor_").c_str(), floor_long<T>),
                    benchmark::RegisterBenchmark(name("Sort_").c_str(), sort_long<T>)})
    at_full_length(run)->Arg(10'000'000);
  for (auto* run : {benchmark::RegisterBenchmark(name("SmallStd_").c_str(), std_short<T>),
                    benchmark::RegisterBenchmark(name("Small_").c_str(), sort_short<T>)})
    run->ArgsProduct({{10, 30, 100, 300, 1000}, {kShuffled, kSorted, kReversed}})->UseManualTime();
  for (auto* run : {benchmark::RegisterBenchmark(name("Literal_").c_str(), literal_index<T>),
                    benchmark::RegisterBenchmark(name("Index_").c_str(), sort_index<T>)})
    run->Args({1'000'000, 0})
        ->Args({1'000'000, 1000})
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

const bool kRegistered = [] {
  register_numbers<double>("double");
  register_numbers<float>("single");
  register_numbers<std::int32_t>("int32");
  register_numbers<std::int16_t>("int16");
  const std::pair<const char*, void (*)(benchmark::State&)> texts[] = {
      {"Texts_multikey", multikey_texts},
      {"Texts_std", std_texts},
      {"Texts_binary", sort_texts<Binary>},
      {"Texts_literal", literal_texts<Text>},
      {"Texts_text", sort_texts<Text>},
      {"Texts_literal_binary_index", literal_texts_index<Binary>},
      {"Texts_binary_index", sort_texts_index<Binary>},
      {"Texts_literal_text_index", literal_texts_index<Text>},
      {"Texts_text_index", sort_texts_index<Text>},
  };
  for (const auto& [name, run] : texts) at_full_length(benchmark::RegisterBenchmark(name, run));
  return true;
}();

}  // namespace
}  // namespace kw::bench
