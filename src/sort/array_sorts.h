// The sorts of clsQSort, one template for all element types.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <numeric>

#include "kwutils/array.h"
#include "kwutils/boolean.h"
#include "kwutils/error.h"
#include "sort/arrays.h"
#include "sort/compare.h"
#include "sort/numbers.h"
#include "sort/texts.h"
#include "sort/work_array.h"

namespace kw::sort {

// How numbers are compared.
struct AsNumbers {
  template <Direction kDirection, class T, class... Order>
  void sort(const Bounded<T>& values, const Order&... order) const {
    sort_numbers<kDirection>(values, order...);
  }
};

// How strings are compared, by the caller's number. Another one than 0 or 1 fails at the first
// comparison (error 5), for which there must be values to compare.
struct AsTexts {
  std::int32_t method;

  template <Direction kDirection, class... Order>
  void sort(const Bounded<BSTR>& values, const Order&... order) const {
    const TextOrder<StringReader> how{kDirection, checked_method(values)};
    sort_texts(values, order..., how);
  }

 private:
  CompareMethod checked_method(const Bounded<BSTR>& values) const {
    if (method == 0) return CompareMethod::binary;
    if (method == 1) return CompareMethod::text;
    values.at(checked_index(std::int64_t{values.lower} + values.upper) / 2);
    throw Error(ErrorNumber::invalid_argument);
  }
};

template <class How, class T, class... Order>
void sort_either_way(How how, bool descending, const Bounded<T>& values, const Order&... order) {
  if (descending)
    how.template sort<Direction::descending>(values, order...);
  else
    how.template sort<Direction::ascending>(values, order...);
}

// A caller's array, in place.
template <class How, class T>
void sort_array(How how, bool descending, Array<T>& values) {
  sort_either_way(how, descending, bounded(values));
}

template <class How, class T>
void sort_array(How how, bool descending, Array<T>& values, Array<std::int32_t>& order) {
  sort_either_way(how, descending, bounded(values), bounded(order));
}

// Makes `order` new and leaves `values` alone. They may be the same variable: `values` are then the
// indexes that `order` has been filled with.
template <class How, class T>
void find_order(How how, bool descending, const Array<T>& values, Array<std::int32_t>& order) {
  order.redim(values.lower(), values.upper());
  const auto indexes = order.elements();
  std::iota(indexes.begin(), indexes.end(), order.lower());
  const auto original = bounded(values);
  const WorkArray<MovedType<T>> copy(original.size());
  if (!copy) throw Error(ErrorNumber::out_of_memory);
  std::copy_n(original.data, original.size(), copy.data());
  const Bounded<MovedType<T>> copied = {copy.data(), original.lower, original.upper};
  sort_either_way(how, descending, copied, bounded(order));
}

// Whether `sort` comes to its end; every error is kept from the caller.
template <class Sort>
Boolean succeeds(Sort sort) {
  try {
    sort();
    return true;
  } catch (const Error&) {
    return false;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

template <class How, class T>
Boolean try_sort(How how, bool descending, Array<T>& values) {
  return succeeds([&] { sort_array(how, descending, values); });
}

template <class How, class T>
Boolean try_find_order(How how, bool descending, const Array<T>& values,
                       Array<std::int32_t>& order) {
  return succeeds([&] { find_order(how, descending, values, order); });
}

}  // namespace kw::sort
